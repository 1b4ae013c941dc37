#include "mail/SmtpDialogue.h"

#include <cstdlib>
#include <utility>

#include "mail/Base64.h"
#include "mail/MailError.h"
#include "mail/SmtpConnection.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

constexpr int kAuthLogin = 1;

/// The reply codes that the commands wait for: those of success, then those of failure. A set's
/// first code wins, wherever in the reply it occurs, so the order matters.
namespace replies {

constexpr std::string_view kGreeting = "220,421";
constexpr std::string_view kGreeted = "220";

constexpr std::string_view kHelo = "250,500,501,504,421";

constexpr std::string_view kAuth = "334,235,552,451,452,500,501,504,421";
constexpr std::string_view kAuthRefused = "500,501,504,421";

constexpr std::string_view kMail = "250,552,451,452,500,501,421";
constexpr std::string_view kMailRefused = "552,451,452,500,501,421";

constexpr std::string_view kRcpt = "250,251,550,551,552,553,450,451,452,500,501,503,421";
constexpr std::string_view kRcptRefused = "550,551,552,553,450,451,452,500,501,503,421";

constexpr std::string_view kData = "354,250,500,501,503,552,554,451,452";
constexpr std::string_view kDataInvited = "354";

constexpr std::string_view kEndOfMessage =
    "250,451,554,500,501,503,421,500,501,503,552,554,451,452";
constexpr std::string_view kDelivered = "250";

/// Nothing is waited for.
constexpr std::string_view kNone;

/// Whether a code is among a list's. Deliberate: the empty code of a wait that ran out is in every
/// list. Silence is a refusal where refusals are looked for, and an invitation after DATA.
bool IsIn(std::string_view list, std::string_view code) {
    return list.find(code) != std::string_view::npos;
}

}  // namespace replies

}  // namespace

SmtpDialogue::SmtpDialogue(MessageFields& message, std::string heloName,
                           const MailEnvironment& environment, Log log)
    : message_(message),
      heloName_(std::move(heloName)),
      environment_(environment),
      log_(std::move(log)),
      server_(message.Server.empty() ? "localhost" : message.Server) {}

bool SmtpDialogue::Deliver(const std::vector<std::string>& recipients, std::string text) {
    if (!SMTPConnect())
        return false;
    Hello();
    Authenticate();
    NameSender();
    NameRecipients(recipients);
    const std::string code = TransferText(std::move(text));
    Command("QUIT", replies::kNone);
    connection_.Close();
    return Report(code);
}

bool SmtpDialogue::SMTPConnect() {
    if (message_.ServerPort == 0)
        message_.ServerPort = kSmtpPort;
    connection_.socket =
        ConnectToHost(server_, message_.ServerPort, environment_.processPendingEvents);
    if (connection_.socket == kNoSocket)
        throw MailError(MailErrorNumber::Connect, "SMTPConnect",
                        "Failed to connect to mail server: Windows Sockets error " +
                            std::to_string(LastSocketError()));
    const std::string code = Exchange("", replies::kGreeting, "");
    if (code == replies::kGreeted)
        return true;
    message_.ErrorString = "SMTP Server is not contactable for domain: " + server_;
    log_(message_.ErrorString);
    return false;
}

void SmtpDialogue::Hello() {
    [[maybe_unused]] const std::string ignored = Command("HELO " + heloName_, replies::kHelo);
}

void SmtpDialogue::Authenticate() {
    if (message_.AuthenticationMode != kAuthLogin || message_.Username.empty() ||
        message_.Password.empty())
        return;
    std::string code = Command("AUTH LOGIN " + Base64::EncodeByteArr(message_.Username),
                               replies::kAuth, "AUTH LOGIN");
    // Deliberate: any code asks for the password, one of refusal too.
    if (std::atoi(code.c_str()) != 0)
        code = Command(Base64::EncodeByteArr(message_.Password), replies::kAuth, "password");
    if (replies::IsIn(replies::kAuthRefused, code))
        throw MailError(MailErrorNumber::Refused, "AUTH",
                        "Could not Authenticate against remote host; Server returned: " + code);
}

void SmtpDialogue::NameSender() {
    const std::string code = Command("MAIL FROM:<" + message_.MailFrom + ">", replies::kMail);
    if (replies::IsIn(replies::kMailRefused, code))
        throw MailError(
            MailErrorNumber::Refused, "MAIL",
            "Invalid Sender Address (" + message_.MailFrom + "); Server returned: " + code);
}

void SmtpDialogue::NameRecipients(const std::vector<std::string>& recipients) {
    bool accepted = false;
    message_.FailedRecipients.clear();
    for (const std::string& recipient : recipients) {
        lastRecipient_ = recipient;
        const std::string code = Command("RCPT TO:<" + recipient + ">", replies::kRcpt);
        if (replies::IsIn(replies::kRcptRefused, code)) {
            std::string& failed = message_.FailedRecipients;
            failed.append(failed.empty() ? "" : ",").append(recipient);
            log_("Recipient failed to server " + Route());
        } else {
            accepted = true;
        }
    }
    if (!accepted)
        throw MailError(MailErrorNumber::NoRecipient, "RCPT",
                        "Could not send to any valid recipients");
}

std::string SmtpDialogue::TransferText(std::string text) {
    // Deliberate: without a reply in time the text is sent, too.
    if (!replies::IsIn(replies::kDataInvited, Command("DATA", replies::kData)))
        return {};
    return Command(std::move(text.append("\r\n.")), replies::kEndOfMessage, "message text");
}

bool SmtpDialogue::Report(std::string_view code) {
    const bool delivered = !code.empty() && replies::IsIn(replies::kDelivered, code);
    message_.ErrorString =
        delivered ? "Sent email to " + Route()
                  : "Failed to send email to " + Route() +
                        ". For more information, please check your SMTP Debug and Activity Logs";
    log_(message_.ErrorString);
    return delivered;
}

std::string SmtpDialogue::Command(std::string line, std::string_view replyCodeSet,
                                  std::string_view loggedAs) {
    environment_.beforeCommand();
    const std::string firstLine =
        loggedAs.empty() ? line.substr(0, line.find_first_of(kCrLf)) : std::string(loggedAs);
    return Exchange(line.append(kCrLf), replyCodeSet, firstLine);
}

std::string SmtpDialogue::Exchange(std::string_view command, std::string_view replyCodeSet,
                                   const std::string& loggedAs) {
    try {
        return SMTPProcessClientCommand(connection_.socket, command, replyCodeSet,
                                        environment_.clock, message_.ErrorString);
    } catch (const ReceiveError& error) {
        log_("Windows Sockets error processing " + loggedAs +
             " command: " + std::to_string(error.SocketNumber()));
        throw;
    }
}

std::string SmtpDialogue::Route() const {
    constexpr std::size_t kMost = 50;
    return "(" + server_ + ") Msg From: " + message_.MailFrom.substr(0, kMost) +
           " Msg To: " + lastRecipient_.substr(0, kMost);
}

}  // namespace cvlang
