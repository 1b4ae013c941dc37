// The client's side of one SMTP conversation.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "mail/MailSurroundings.h"
#include "mail/MessageFields.h"
#include "mail/Sockets.h"

namespace cvlang {

/// Sends a command's bytes, an empty one not at all, and returns the code of the set that the
/// server replies with; see SmtpReplyCodes.h for what else it can be. An empty set is not waited
/// for. When receiving fails, ErrorString says in which command, and the error is raised.
std::string SMTPProcessClientCommand(SocketHandle socket, std::string_view command,
                                     std::string_view replyCodeSet, const Clock& clock,
                                     std::string& ErrorString);

class SmtpDialogue {
  public:
    /// Writes a line to the activity log.
    using Log = std::function<void(std::string_view)>;

    /// The message and the surroundings must outlive the conversation.
    SmtpDialogue(MessageFields& message, std::string heloName, const MailSurroundings& surroundings,
                 Log log);

    /// Holds the whole conversation and leaves its outcome in the message's ErrorString and the
    /// log. True when the server took the message; a failure that ends the conversation early is
    /// raised as an error.
    bool Deliver(const std::vector<std::string>& recipients, std::string text);

  private:
    bool SMTPConnect();
    void Hello();
    void Authenticate();
    void NameSender();
    void NameRecipients(const std::vector<std::string>& recipients);
    std::string TransferText(std::string text);
    bool Report(std::string_view code);

    std::string Command(std::string line, std::string_view replyCodeSet);
    /// The server and the two ends of the message, as the reports name them.
    std::string Route() const;

    MessageFields& message_;
    std::string heloName_;
    const MailSurroundings& surroundings_;
    Log log_;
    std::string server_;
    std::string lastRecipient_;
    Connection connection_;
};

}  // namespace cvlang
