#include "platform/Sockets.h"

#include "NativeSockets.h"

#include <algorithm>

namespace cvlang {
namespace {

NativeSocket Native(SocketHandle socket) {
    return static_cast<SOCKET>(socket);
}

/// The calls count in int. A send's time-out is for all of its bytes, so they must be few.
int Limited(std::size_t size) {
    constexpr std::size_t kMost = 1 << 16;
    return static_cast<int>(std::min(size, kMost));
}

/// A look at the connection that takes nothing from it and does not wait.
std::ptrdiff_t ReceiveNothing(SOCKET socket) {
    fd_set readable{1, {socket}};
    timeval atOnce{0, 0};
    char byte = 0;
    return select(0, &readable, nullptr, nullptr, &atOnce) != 0 &&
                   recv(socket, &byte, 1, MSG_PEEK) < 0
               ? -1
               : 0;
}

}  // namespace

int StartSockets() {
    WSADATA data{};
    return WSAStartup(MAKEWORD(1, 1), &data);
}

int StopSockets() {
    return WSACleanup();
}

int LastSocketError() {
    return WSAGetLastError();
}

void SetLastSocketError(int number) {
    WSASetLastError(number);
}

int CloseConnection(SocketHandle socket) {
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
