// A mail server that says what a test tells it to.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include "mail/AddressList.h"
#include "platform/SystemInformation.h"
#include "support/LoopbackListener.h"

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
        : script_(std::move(script)), ending_(ending), thread_([this] { Run(); }) {}
    ~ScriptedPeer() { Received(); }

    int Port() const { return listener_.Port(); }

    /// Stands still, but for silences and when the script is over.
    Clock ClientsClock() {
        return [this] {
            const int second = isOver_ ? ++seconds_ : seconds_.load();
            return LocalTime{2004, 3, 7, second / 3600 % 24, second / 60 % 60, second % 60};
        };
    }

    /// All that the client has sent, once it is done. The clock is back at its start then.
    std::string Received() {
        if (thread_.joinable())
            thread_.join();
        isOver_ = false;
        seconds_ = 0;
        return received_;
    }

  private:
    void Run() {
        client_ = listener_.Accept();
        const auto replies = SplitList(script_, '|');
        bool connected = true;
        for (std::size_t i = 0; i < replies.size() && !script_.empty() && connected; ++i) {
            connected = i == 0 || ReceiveCommand(replies[i - 1]);
            seconds_ += replies[i].empty() ? 60 : 0;
            for (const char& byte : replies[i])
                SendBytes(client_, {&byte, 1});
        }
        if (ending_ == Ending::Listen)
            while (ReceiveByte()) {
            }
        else if (ending_ != Ending::ResetAtOnce && !script_.empty())
            ReceiveCommand(replies.back());
        ending_ < Ending::Reset ? static_cast<void>(CloseSocket(client_))
                                : ResetConnection(client_);
        isOver_ = true;
    }

    bool ReceiveByte() {
        char byte = 0;
        const bool came = ReceiveBytes(client_, &byte, 1) == 1;
        received_.append(came ? 1 : 0, byte);
        return came;
    }

    bool ReceiveCommand(std::string_view answered) {
        const std::string end = answered.substr(0, 3) == "354" ? "\r\n.\r\n" : "\r\n";
        bool came = ReceiveByte();
        while (came && !received_.ends_with(end))
            came = ReceiveByte();
        return came;
    }

    const std::string script_;
    const Ending ending_;
    const LoopbackListener listener_;
    SocketHandle client_ = kNoSocket;
    std::string received_;
    std::atomic<int> seconds_ = 0;
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

}  // namespace cvlang
