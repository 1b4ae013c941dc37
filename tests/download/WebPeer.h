// A web server that answers one request with given bytes.
#pragma once

#include "support/LoopbackPeer.h"

namespace cvlang {

struct WebPeer : LoopbackPeer {
    /// A request's body of that size is awaited. The connection ends with the answer.
    explicit WebPeer(std::string answer, std::size_t bodySize = 0)
        : LoopbackPeer([answer = std::move(answer), bodySize](LoopbackPeer& peer) {
              peer.ReceiveUntil("\r\n\r\n");
              for (std::size_t i = 0; i < bodySize; ++i)
                  peer.ReceiveByte();
              std::ptrdiff_t count = 1;
              for (std::string_view rest = answer; !rest.empty() && count > 0;) {
                  count = SendBytes(peer.client, rest);
                  rest.remove_prefix(static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0)));
              }
          }) {}
};

}  // namespace cvlang
