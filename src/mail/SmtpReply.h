// Waiting for a server's reply.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Sockets.h"
#include "platform/SystemInformation.h"

namespace cvlang {

/// Looks for the codes of a set in a reply that comes in pieces. It keeps no more of the reply than a code that is
/// still incomplete, however much a server sends.
class ReplyScanner {
  public:
    /// The set's codes are separated by commas; it must outlive the scanner.
    explicit ReplyScanner(std::string_view replyCodeSet);

    /// Takes the next piece and returns the first code in the set's order that occurs anywhere in the reply so far,
    /// also amid other digits; empty when none does. A NUL at the end of a piece is not part of the reply.
    std::string_view Add(std::string_view piece);

  private:
    std::vector<std::string_view> codes_;
    std::size_t longest_ = 0;
    std::string text_;
};

/// How many times the clock's minute changed from one time to the other; negative when the clock was set back.
long MinuteBoundariesBetween(const LocalTime& start, const LocalTime& now);

/// The code that the server replies with; empty when the minute in which the wait started ends first. So a wait takes
/// from under a second up to a minute, which is meant: administrators know their servers' time-outs by the minute.
/// Raises an error when the connection fails.
std::string WaitForReply(SocketHandle socket, std::string_view replyCodeSet, const Clock& clock,
                         const LocalTime& start);

}  // namespace cvlang
