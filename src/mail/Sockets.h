// The connection to a mail server.
#pragma once

#include <functional>
#include <string>

#include "platform/Sockets.h"

namespace cvlang {

/// 0 when the sockets can be used.
int StartSockets();
int StopSockets();

bool IsIPAddress(const std::string& host);
/// The host's address in numbers and dots; empty when there is no such host.
std::string ResolveHostAddress(const std::string& host);

/// The connected socket, or kNoSocket; LastSocketError then tells the reason.
SocketHandle ConnectToHost(const std::string& host, int port,
                           const std::function<void()>& processPendingEvents);
int CloseConnection(SocketHandle socket);

/// The sockets library for the time of one delivery. When starting it fails, connecting will tell.
class SocketsSession {
  public:
    SocketsSession();
    ~SocketsSession();
    SocketsSession(const SocketsSession&) = delete;
    SocketsSession& operator=(const SocketsSession&) = delete;
};

/// A connection that is closed at the latest when its owner goes.
class Connection {
  public:
    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { Close(); }

    void Open(SocketHandle socket) { socket_ = socket; }
    bool IsOpen() const { return socket_ != kNoSocket; }
    SocketHandle Socket() const { return socket_; }
    void Close();

  private:
    SocketHandle socket_ = kNoSocket;
};

}  // namespace cvlang
