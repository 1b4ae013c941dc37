#include "platform/Sockets.h"

#include "NativeSockets.h"
#include "platform/posix/Descriptor.h"

namespace cvlang {
namespace {

/// A look at the connection that takes nothing from it.
std::ptrdiff_t ReceiveNothing(int socket) {
    char byte = 0;
    const ssize_t seen =
        Uninterrupted([&] { return recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT); });
    return seen < 0 && errno != EAGAIN ? -1 : 0;
}

}  // namespace

int StartSockets() {
    return 0;
}

int StopSockets() {
    return 0;
}

int LastSocketError() {
    return errno;
}

void SetLastSocketError(int number) {
    errno = number;
}

int CloseConnection(SocketHandle socket) {
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
