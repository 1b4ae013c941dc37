// A web server that answers one request with given bytes and remembers what it was asked.
#pragma once

#include <string>
#include <thread>

#include "support/LoopbackListener.h"

namespace cvlang {

class WebPeer {
  public:
    /// A request's body of that size is awaited. The connection ends with the answer.
    explicit WebPeer(std::string answer, std::size_t bodySize = 0)
        : answer_(std::move(answer)), thread_([this, bodySize] { Run(bodySize); }) {}
    ~WebPeer() { Request(); }

    std::uint16_t Port() const { return static_cast<std::uint16_t>(listener_.Port()); }

    /// All that was received, once the answer is out.
    std::string Request() {
        if (thread_.joinable())
            thread_.join();
        return request_;
    }

  private:
    void Run(std::size_t bodySize) {
        const SocketHandle client = listener_.Accept();
        if (client == kNoSocket)
            return;
        char byte = 0;
        std::size_t headerEnd = std::string::npos;
        while (headerEnd == std::string::npos || request_.size() < headerEnd + 4 + bodySize) {
            if (ReceiveBytes(client, &byte, 1) != 1)
                break;
            request_ += byte;
            headerEnd = request_.find("\r\n\r\n");
        }
        for (std::size_t sent = 0; sent < answer_.size();) {
            const auto count = SendBytes(client, std::string_view(answer_).substr(sent));
            if (count <= 0)
                break;
            sent += static_cast<std::size_t>(count);
        }
        CloseSocket(client);
    }

    LoopbackListener listener_;
    std::string answer_;
    std::string request_;
    std::thread thread_;
};

}  // namespace cvlang
