// The client's side of SMTP: one conversation, and its single commands.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "mail/MessageText.h"
#include "platform/Sockets.h"

namespace cvlang {

/// Looks for the codes of a set in a reply that comes in pieces. It keeps no more of the reply than
/// a code that is still incomplete, however much a server sends.
class ReplyScanner {
  public:
    /// The set's codes are separated by commas; it must outlive the scanner.
    explicit ReplyScanner(std::string_view replyCodeSet);

    /// Takes the next piece and returns the first code in the set's order that occurs anywhere in
    /// the reply so far, also amid other digits; empty when none does. A NUL at the end of a piece
    /// is not part of the reply.
    std::string_view Add(std::string_view piece);

  private:
    std::vector<std::string_view> codes_;
    std::size_t longest_ = 0;
    std::string text_;
};

/// How many times the clock's minute changed from one time to the other; negative when the clock
/// was set back.
long MinuteBoundariesBetween(const LocalTime& start, const LocalTime& now);

/// The code that the server replies with; empty when the minute in which the wait started ends
/// first. Deliberate: so a wait takes from under a second up to a minute. Raises an error when the
/// connection fails.
std::string WaitForReply(SocketHandle socket, std::string_view replyCodeSet, const Clock& clock,
                         const LocalTime& start);

/// Returned in a code's place when nothing could be sent. No list of codes contains it, so that it
/// never counts as a refusal.
inline constexpr std::string_view kGeneralError = "General Error";

/// Sends a command's bytes, an empty one not at all, and returns the code of the set that the
/// server replies with; kGeneralError when nothing could be sent. An empty set is not waited
/// for. When receiving fails, ErrorString says in which command, and the error is raised.
std::string SMTPProcessClientCommand(SocketHandle socket, std::string_view command,
                                     std::string_view replyCodeSet, const Clock& clock,
                                     std::string& ErrorString);

/// Writes a line to the activity log.
using ActivityLog = std::function<void(std::string_view)>;

/// Delivers the text of a message in one conversation, and leaves its outcome in the message's
/// ErrorString and the log. True when the server took the message; a failure that ends the
/// conversation early is raised as an error.
bool DeliverMessage(MessageFields& message, const std::string& heloName,
                    const MailEnvironment& environment, const ActivityLog& log,
                    const std::vector<std::string>& recipients, std::string text);

}  // namespace cvlang
