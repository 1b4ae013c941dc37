#include "platform/Sockets.h"

#include <winsock2.h>

#include <algorithm>

namespace cvlang {
namespace {

SOCKET Native(SocketHandle socket) {
    return static_cast<SOCKET>(socket);
}

constexpr DWORD kSendPatience = 60000;  // milliseconds

/// The calls count in int. A send's patience is for all of its bytes, so they must be few.
int Limited(std::size_t size) {
    constexpr std::size_t kMost = 1 << 16;
    return static_cast<int>(std::min(size, kMost));
}

bool HasSomethingToTell(SOCKET socket) {
    fd_set readable;
    FD_ZERO(&readable);
    readable.fd_array[readable.fd_count++] = socket;
    timeval atOnce{0, 0};
    return select(0, &readable, nullptr, nullptr, &atOnce) != 0;
}

/// A look at the connection that takes nothing from it.
std::ptrdiff_t ReceiveNothing(SOCKET socket) {
    char byte = 0;
    if (!HasSomethingToTell(socket))
        return 0;
    return recv(socket, &byte, 1, MSG_PEEK) < 0 ? -1 : 0;
}

}  // namespace

int StartSocketLibrary() {
    WSADATA data{};
    return WSAStartup(MAKEWORD(1, 1), &data);
}

int StopSocketLibrary() {
    return WSACleanup();
}

int LastSocketError() {
    return WSAGetLastError();
}

void SetLastSocketError(int number) {
    WSASetLastError(number);
}

std::optional<AddressNumber> AddressFromNumbers(const std::string& text) {
    const unsigned long address = inet_addr(text.c_str());
    return address == INADDR_NONE ? std::nullopt : std::optional<AddressNumber>(address);
}

std::string FirstAddressOfHost(const std::string& name) {
    const hostent* host = gethostbyname(name.c_str());
    if (host == nullptr || host->h_addr_list[0] == nullptr)
        return {};
    return {host->h_addr_list[0], static_cast<std::size_t>(host->h_length)};
}

SocketHandle OpenTcpSocket() {
    return static_cast<SocketHandle>(socket(AF_INET, SOCK_STREAM, IPPROTO_TCP));
}

int ConnectSocket(SocketHandle socket, AddressNumber address, std::uint16_t port) {
    sockaddr_in peer{};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(port);
    peer.sin_addr.s_addr = address;
    if (connect(Native(socket), reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0)
        return SOCKET_ERROR;
    // Without it only the patience is missing.
    [[maybe_unused]] const int ignored =
        setsockopt(Native(socket), SOL_SOCKET, SO_SNDTIMEO,
                   reinterpret_cast<const char*>(&kSendPatience), sizeof kSendPatience);
    return 0;
}

int CloseSocket(SocketHandle socket) {
    return closesocket(Native(socket));
}

std::ptrdiff_t SendBytes(SocketHandle socket, std::string_view bytes) {
    return send(Native(socket), bytes.data(), Limited(bytes.size()), 0);
}

std::size_t WaitingBytes(SocketHandle socket) {
    u_long count = 0;
    return ioctlsocket(Native(socket), FIONREAD, &count) == 0 ? count : 0;
}

std::ptrdiff_t ReceiveBytes(SocketHandle socket, char* to, std::size_t count) {
    return count == 0 ? ReceiveNothing(Native(socket))
                      : recv(Native(socket), to, Limited(count), 0);
}

}  // namespace cvlang
