#include "mail/Sockets.h"

namespace cvlang {
namespace {

/// The failure keeps its number while the socket is closed.
SocketHandle Abandon(SocketHandle socket) {
    const int reason = LastSocketError();
    CloseConnection(socket);
    SetLastSocketError(reason);
    return kNoSocket;
}

}  // namespace

int StartSockets() {
    return StartSocketLibrary();
}

int StopSockets() {
    return StopSocketLibrary();
}

bool IsIPAddress(const std::string& host) {
    return !host.empty() && AddressFromNumbers(host).has_value();
}

std::string ResolveHostAddress(const std::string& host) {
    if (IsIPAddress(host))
        return host;
    std::string text;
    for (const char byte : FirstAddressOfHost(host)) {
        text += text.empty() ? "" : ".";
        text += std::to_string(static_cast<unsigned char>(byte));
    }
    return text;
}

SocketHandle ConnectToHost(const std::string& host, int port,
                           const std::function<void()>& processPendingEvents) {
    const std::string numbers = ResolveHostAddress(host);
    if (!IsIPAddress(numbers))
        return kNoSocket;
    const SocketHandle socket = OpenTcpSocket();
    if (socket == kNoSocket)
        return kNoSocket;
    processPendingEvents();
    if (ConnectSocket(socket, *AddressFromNumbers(numbers), static_cast<std::uint16_t>(port)) != 0)
        return Abandon(socket);
    return socket;
}

int CloseConnection(SocketHandle socket) {
    return CloseSocket(socket);
}

SocketsSession::SocketsSession() {
    if (StartSockets() != 0)
        StopSockets();
}

SocketsSession::~SocketsSession() {
    StopSockets();
}

void Connection::Close() {
    if (IsOpen())
        CloseConnection(socket_);
    socket_ = kNoSocket;
}

}  // namespace cvlang
