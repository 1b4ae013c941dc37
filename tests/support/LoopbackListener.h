// A server's end of a connection within this computer.
#pragma once

#include "platform/Sockets.h"

namespace cvlang {

/// Listens on a free port.
class LoopbackListener {
  public:
    LoopbackListener();
    ~LoopbackListener();
    LoopbackListener(const LoopbackListener&) = delete;
    LoopbackListener& operator=(const LoopbackListener&) = delete;

    int Port() const { return port_; }
    /// kNoSocket when nobody connects within a few seconds.
    SocketHandle Accept() const;

  private:
    SocketHandle socket_;
    int port_ = 0;
};

/// Whether the system's libraries do all that they should. Wine's keep some resets to themselves
/// and do not forbid caches to answer.
extern const bool kNetworkIsComplete;

/// Closes a connection as a peer that crashes does.
void ResetConnection(SocketHandle socket);

}  // namespace cvlang
