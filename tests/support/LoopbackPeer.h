// Servers on this computer.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "mail/HeaderValues.h"
#include "platform/Sockets.h"

namespace cvlang {

/// Whether the system's libraries do all that they should. Wine's keep some resets to themselves
/// and do not forbid caches to answer.
inline constexpr bool kNetworkIsComplete = NETWORK_IS_COMPLETE;

/// Listens on a free port and serves one client, in a thread of its own. A client that does not
/// connect within a few seconds is not waited for.
class LoopbackPeer {
  public:
    explicit LoopbackPeer(std::function<void(LoopbackPeer&)> serve,
                          const char* address = "127.0.0.1");
    ~LoopbackPeer();

    std::uint16_t Port() const { return port_; }
    /// All that the client has sent, once it was served.
    std::string Received();

    /// Until the client is gone, if there is no such end.
    bool ReceiveUntil(std::string_view end);
    /// All bytes, or as many as the client takes.
    void Send(std::string_view bytes);
    /// Closes the connection as a peer that crashes does.
    void Reset();

  private:
    SocketHandle Accept() const;

    SocketHandle listening_ = kNoSocket;
    SocketHandle client_ = kNoSocket;
    std::uint16_t port_ = 0;
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
                  peer.Send(answer);
              },
              address) {}
};

/// What comes at the end of the script: the client is listened to until it goes; or it is left,
/// once it has sent one command more or (amid a message) at once.
enum class Ending { Listen, Close, Reset, ResetAtOnce };

/// The replies of the script are separated by "|". The first one greets, each other one answers a
/// command, or the message after a 354. Each is sent in two pieces; an empty one lets the client's
/// minute pass.
class ScriptedPeer {
  public:
    explicit ScriptedPeer(std::string script, Ending ending = Ending::Listen)
        : script_(std::move(script)), ending_(ending) {}

    int Port() const { return peer_.Port(); }
    /// All that the client has sent, once it is done.
    std::string Received() { return peer_.Received(); }

    /// Stops, but for silences and when the script is over. What is on its way then has the time
    /// to arrive: the client asks without a rest.
    Clock ClientsClock() {
        return [this] {
            if (isOver_) {
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
                ++seconds_;
            }
            return LocalTime{2004, 3, 7, 9, seconds_ / 60, seconds_ % 60};
        };
    }

  private:
    void Run(LoopbackPeer& peer) {
        const auto receiveCommand = [&peer](std::string_view answered) {
            return peer.ReceiveUntil(answered.starts_with("354") ? "\r\n.\r\n" : "\r\n");
        };
        const auto replies = SplitList(script_, '|');
        bool connected = !script_.empty();
        for (std::size_t i = 0; i < replies.size() && connected; ++i) {
            connected = i == 0 || receiveCommand(replies[i - 1]);
            seconds_ += replies[i].empty() ? 60 : 0;
            peer.Send(replies[i].substr(0, 1));
            peer.Send(replies[i].substr(replies[i].empty() ? 0 : 1));
        }
        isOver_ = ending_ == Ending::Listen;
        if (isOver_)
            peer.ReceiveUntil("");
        if ((ending_ == Ending::Close || ending_ == Ending::Reset) && !script_.empty())
            receiveCommand(replies.back());
        if (ending_ >= Ending::Reset)
            peer.Reset();
        isOver_ = true;
    }

    const std::string script_;
    const Ending ending_;
    std::atomic<int> seconds_ = 0;
    std::atomic<bool> isOver_ = false;
    LoopbackPeer peer_{[this](LoopbackPeer& peer) { Run(peer); }};
};

}  // namespace cvlang
