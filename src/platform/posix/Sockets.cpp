#include "platform/Sockets.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

namespace cvlang {
namespace {

constexpr timeval kSendPatience{60, 0};

template <typename Call>
ssize_t Uninterrupted(Call call) {
    ssize_t result = 0;
    do {
        result = call();
    } while (result < 0 && errno == EINTR);
    return result;
}

/// A look at the connection that takes nothing from it.
std::ptrdiff_t ReceiveNothing(int socket) {
    char byte = 0;
    const ssize_t seen =
        Uninterrupted([&] { return recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT); });
    return seen < 0 && errno != EAGAIN ? -1 : 0;
}

}  // namespace

int StartSocketLibrary() {
    return 0;
}

int StopSocketLibrary() {
    return 0;
}

int LastSocketError() {
    return errno;
}

void SetLastSocketError(int number) {
    errno = number;
}

std::optional<AddressNumber> AddressFromNumbers(const std::string& text) {
    const in_addr_t address = inet_addr(text.c_str());
    return address == INADDR_NONE ? std::nullopt : std::optional<AddressNumber>(address);
}

std::string FirstAddressOfHost(const std::string& name) {
    const hostent* host = gethostbyname(name.c_str());
    if (host == nullptr || host->h_addr_list[0] == nullptr) {
        // The look-up has numbers of its own; this is the one of the others that says it best.
        errno = EHOSTUNREACH;
        return {};
    }
    return {host->h_addr_list[0], static_cast<std::size_t>(host->h_length)};
}

SocketHandle OpenTcpSocket() {
    return socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, IPPROTO_TCP);
}

int ConnectSocket(SocketHandle socket, AddressNumber address, std::uint16_t port) {
    sockaddr_in peer{};
    peer.sin_family = AF_INET;
    peer.sin_port = htons(port);
    peer.sin_addr.s_addr = address;
    if (connect(static_cast<int>(socket), reinterpret_cast<const sockaddr*>(&peer), sizeof peer) !=
        0)
        return -1;
    // Not before: it would cut connecting short, too. Without it only the patience is missing.
    [[maybe_unused]] const int ignored = setsockopt(
        static_cast<int>(socket), SOL_SOCKET, SO_SNDTIMEO, &kSendPatience, sizeof kSendPatience);
    return 0;
}

int CloseSocket(SocketHandle socket) {
    return close(static_cast<int>(socket));
}

std::ptrdiff_t SendBytes(SocketHandle socket, std::string_view bytes) {
    return Uninterrupted(
        [&] { return send(static_cast<int>(socket), bytes.data(), bytes.size(), MSG_NOSIGNAL); });
}

std::size_t WaitingBytes(SocketHandle socket) {
    int count = 0;
    return ioctl(static_cast<int>(socket), FIONREAD, &count) == 0 && count > 0
               ? static_cast<std::size_t>(count)
               : 0;
}

std::ptrdiff_t ReceiveBytes(SocketHandle socket, char* to, std::size_t count) {
    if (count == 0)
        return ReceiveNothing(static_cast<int>(socket));
    return Uninterrupted([&] { return recv(static_cast<int>(socket), to, count, 0); });
}

}  // namespace cvlang
