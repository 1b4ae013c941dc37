// A mail server that says what a test tells it to.
#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

#include "mail/HeaderValues.h"
#include "platform/SystemInformation.h"
#include "support/LoopbackPeer.h"

namespace cvlang {

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
        while (isOver_ && peer.ReceiveByte()) {
        }
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
