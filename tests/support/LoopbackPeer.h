// Servers on this computer.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>

#include "mail/HeaderValues.h"
#include "platform/Sockets.h"

namespace cvlang {

/// Listens on a free port.
class LoopbackListener {
  public:
    explicit LoopbackListener(const char* address = "127.0.0.1");
    ~LoopbackListener();

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

    /// Until the client is gone, if there is no such end.
    bool ReceiveUntil(std::string_view end) {
        for (char byte = 0; ReceiveBytes(client, &byte, 1) == 1;) {
            received_ += byte;
            if (!end.empty() && received_.ends_with(end))
                return true;
        }
        return false;
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
                  for (std::string_view rest = answer;
                       !rest.empty();) {  // takes several on Windows
                      const std::ptrdiff_t sent = SendBytes(peer.client, rest);
                      rest.remove_prefix(sent < 0 ? rest.size() : static_cast<std::size_t>(sent));
                  }
              },
              address) {}
};

/// What comes at the end of the script: the client is listened to until it goes; or it is left,
/// once it has sent one command more or (amid a message) at once.
enum class Ending { Listen, Close, Reset, ResetAtOnce };

/// The replies of the script stand between "|". The first one greets, each other one answers a
/// command, or the message after a 354. Each goes out byte by byte; an empty one lets the client's
/// minute pass.
class ScriptedPeer {
  public:
    explicit ScriptedPeer(std::string script, Ending ending = Ending::Listen)
        : script_(std::move(script)), ending_(ending) {}

    int Port() const { return peer_.Port(); }

    /// Stands still, but for silences and when the script is over. What is on its way then has the
    /// time to arrive: the client asks without a rest.
    Clock ClientsClock() {
        return [this] {
            if (isOver_) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                ++seconds_;
            }
            return LocalTime{2004, 3, 7, 9, seconds_ / 60, seconds_ % 60};
        };
    }

    /// All that the client has sent, once it is done.
    std::string Received() { return peer_.Received(); }

  private:
    static bool ReceiveCommand(LoopbackPeer& peer, std::string_view answered) {
        return peer.ReceiveUntil(answered.starts_with("354") ? "\r\n.\r\n" : "\r\n");
    }

    void Run(LoopbackPeer& peer) {
        const auto replies = SplitList(script_, '|');
        bool connected = !script_.empty();
        for (std::size_t i = 0; i < replies.size() && connected; ++i) {
            connected = i == 0 || ReceiveCommand(peer, replies[i - 1]);
            seconds_ += replies[i].empty() ? 60 : 0;
            for (const char& byte : replies[i])
                SendBytes(peer.client, {&byte, 1});
        }
        isOver_ = ending_ == Ending::Listen;
        if (isOver_)
            peer.ReceiveUntil("");
        if ((ending_ == Ending::Close || ending_ == Ending::Reset) && !script_.empty())
            ReceiveCommand(peer, replies.back());
        if (ending_ >= Ending::Reset)
            ResetConnection(std::exchange(peer.client, kNoSocket));
        isOver_ = true;
    }

    const std::string script_;
    const Ending ending_;
    std::atomic<int> seconds_ = 0;
    std::atomic<bool> isOver_ = false;
    LoopbackPeer peer_{[this](LoopbackPeer& peer) { Run(peer); }};
};

}  // namespace cvlang
