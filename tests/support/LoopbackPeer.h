// Servers on this computer.
#pragma once

#include <functional>
#include <string>
#include <thread>

#include "platform/Sockets.h"

namespace cvlang {

/// Listens on a free port.
class LoopbackListener {
  public:
    explicit LoopbackListener(const char* address = "127.0.0.1");
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

/// Serves one client.
class LoopbackPeer {
  public:
    /// What is served runs in a thread of its own, once the client is there.
    explicit LoopbackPeer(std::function<void(LoopbackPeer&)> serve,
                          const char* address = "127.0.0.1")
        : listener_(address), thread_([this, serve = std::move(serve)] {
              client = listener_.Accept();
              serve(*this);
              CloseConnection(client);
          }) {}
    ~LoopbackPeer() { Received(); }

    std::uint16_t Port() const { return static_cast<std::uint16_t>(listener_.Port()); }

    /// All that the client has sent, once it was served.
    std::string Received() {
        if (thread_.joinable())
            thread_.join();
        return received_;
    }

    bool ReceiveByte() {
        char byte = 0;
        const bool came = ReceiveBytes(client, &byte, 1) == 1;
        received_.append(came ? 1 : 0, byte);
        return came;
    }

    bool ReceiveUntil(std::string_view end) {
        bool came = ReceiveByte();
        while (came && !received_.ends_with(end))
            came = ReceiveByte();
        return came;
    }

    SocketHandle client = kNoSocket;

  private:
    const LoopbackListener listener_;
    std::string received_;
    std::thread thread_;
};

/// A web server: the connection ends with the answer, as a server's that is asked in HTTP 1.0.
struct WebPeer : LoopbackPeer {
    /// The answer is given to a request with this body.
    explicit WebPeer(const std::string& answer, const std::string& body = "",
                     const char* address = "127.0.0.1")
        : LoopbackPeer(
              [answer, body](LoopbackPeer& peer) {
                  peer.ReceiveUntil("\r\n\r\n" + body);
                  for (std::string_view rest = answer; !rest.empty();) {
                      const std::ptrdiff_t sent = SendBytes(peer.client, rest);
                      rest.remove_prefix(sent < 0 ? rest.size() : static_cast<std::size_t>(sent));
                  }
              },
              address) {}
};

}  // namespace cvlang
