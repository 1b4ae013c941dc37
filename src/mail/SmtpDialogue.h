// The client's side of one SMTP conversation.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "mail/MessageFields.h"
#include "mail/SmtpConnection.h"

namespace cvlang {

class SmtpDialogue {
  public:
    /// Writes a line to the activity log.
    using Log = std::function<void(std::string_view)>;

    /// The message and the environment must outlive the conversation.
    SmtpDialogue(MessageFields& message, std::string heloName, const MailEnvironment& environment,
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

    /// Sends a line. When receiving the reply fails, the log names the command by its first line or
    /// by `loggedAs`, which replaces what is secret or long.
    std::string Command(std::string line, std::string_view replyCodeSet,
                        std::string_view loggedAs = {});
    std::string Exchange(std::string_view command, std::string_view replyCodeSet,
                         const std::string& loggedAs);
    /// The server and the two ends of the message, as the reports name them.
    std::string Route() const;

    MessageFields& message_;
    std::string heloName_;
    const MailEnvironment& environment_;
    Log log_;
    std::string server_;
    std::string lastRecipient_;
    Connection connection_;
};

}  // namespace cvlang
