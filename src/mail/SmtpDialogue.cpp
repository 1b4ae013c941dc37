#include "mail/SmtpDialogue.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <utility>

#include "mail/Base64.h"
#include "mail/HeaderValues.h"
#include "mail/MailError.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

/// The failure keeps its number while the socket is closed.
SocketHandle Abandon(SocketHandle socket) {
    const int reason = LastSocketError();
    CloseConnection(socket);
    SetLastSocketError(reason);
    return kNoSocket;
}

std::chrono::sys_time<std::chrono::minutes> MinuteOf(const LocalTime& time) {
    const std::chrono::sys_days day = std::chrono::year(time.year) / time.month / time.day;
    return day + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute);
}

/// Receives what has come, and nothing when nothing has.
std::string_view ReceiveWaiting(SocketHandle socket, std::vector<char>& buffer) {
    const std::size_t count = WaitingBytes(socket);
    buffer.resize(std::max(buffer.size(), count + 1));
    const std::ptrdiff_t received = ReceiveBytes(socket, buffer.data(), count);
    if (received < 0)
        throw ReceiveError(LastSocketError());
    return {buffer.data(), static_cast<std::size_t>(received)};
}

/// 0 when the first send took nothing. A failure is left to the wait for the reply to find.
std::ptrdiff_t SendAll(SocketHandle socket, std::string_view bytes) {
    const std::ptrdiff_t first = SendBytes(socket, bytes);
    for (std::ptrdiff_t sent = first; sent > 0; sent = SendBytes(socket, bytes)) {
        bytes.remove_prefix(static_cast<std::size_t>(sent));
        if (bytes.empty())
            break;
    }
    return first;
}

/// The connected socket, or kNoSocket; LastSocketError then has the reason.
SocketHandle ConnectToHost(const std::string& host, int port,
                           const std::function<void()>& processPendingEvents) {
    const std::string address = ResolveHostAddress(host);
    const SocketHandle socket = address.empty() ? kNoSocket : OpenTcpSocket();
    if (socket == kNoSocket)
        return kNoSocket;
    processPendingEvents();
    if (ConnectSocket(socket, address, static_cast<std::uint16_t>(port)) != 0)
        return Abandon(socket);
    return socket;
}

/// The sockets library for the time of one delivery, and its connection, which is closed at the
/// latest by the destructor. When starting the library fails, connecting fails.
struct Connection {
    Connection() {
        if (StartSockets() != 0)
            StopSockets();
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() {
        Close();
        StopSockets();
    }
    void Close() {
        if (socket != kNoSocket)
            CloseConnection(socket);
        socket = kNoSocket;
    }

    SocketHandle socket = kNoSocket;
};

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

/// One conversation with the server.
class SmtpDialogue {
  public:
    SmtpDialogue(MessageFields& message, const std::string& heloName,
                 const MailEnvironment& environment, const ActivityLog& log)
        : message_(message),
          heloName_(heloName),
          environment_(environment),
          log_(log),
          server_(message.Server.empty() ? "localhost" : message.Server) {}

    bool Deliver(const std::vector<std::string>& recipients, std::string text) {
        if (!SMTPConnect())
            return false;
        // Deliberate: the reply does not matter.
        [[maybe_unused]] const std::string ignored = Command("HELO " + heloName_, replies::kHelo);
        Authenticate();
        NameSender();
        NameRecipients(recipients);
        const std::string code = TransferText(std::move(text));
        Command("QUIT", replies::kNone);
        connection_.Close();
        return Report(code);
    }

  private:
    bool SMTPConnect() {
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

    void Authenticate() {
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

    void NameSender() {
        const std::string code = Command("MAIL FROM:<" + message_.MailFrom + ">", replies::kMail);
        if (replies::IsIn(replies::kMailRefused, code))
            throw MailError(
                MailErrorNumber::Refused, "MAIL",
                "Invalid Sender Address (" + message_.MailFrom + "); Server returned: " + code);
    }

    void NameRecipients(const std::vector<std::string>& recipients) {
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

    std::string TransferText(std::string text) {
        // Deliberate: without a reply in time the text is sent, too.
        if (!replies::IsIn(replies::kDataInvited, Command("DATA", replies::kData)))
            return {};
        return Command(std::move(text.append("\r\n.")), replies::kEndOfMessage, "message text");
    }

    bool Report(std::string_view code) {
        const bool delivered = !code.empty() && replies::IsIn(replies::kDelivered, code);
        message_.ErrorString =
            delivered
                ? "Sent email to " + Route()
                : "Failed to send email to " + Route() +
                      ". For more information, please check your SMTP Debug and Activity Logs";
        log_(message_.ErrorString);
        return delivered;
    }

    /// Sends a line. When receiving the reply fails, the log names the command by its first line or
    /// by `loggedAs`, which replaces what is secret or long.
    std::string Command(std::string line, std::string_view replyCodeSet,
                        std::string_view loggedAs = {}) {
        environment_.beforeCommand();
        const std::string firstLine =
            loggedAs.empty() ? line.substr(0, line.find_first_of(kCrLf)) : std::string(loggedAs);
        return Exchange(line.append(kCrLf), replyCodeSet, firstLine);
    }

    std::string Exchange(std::string_view command, std::string_view replyCodeSet,
                         const std::string& loggedAs) {
        try {
            return SMTPProcessClientCommand(connection_.socket, command, replyCodeSet,
                                            environment_.clock, message_.ErrorString);
        } catch (const ReceiveError& error) {
            log_("Windows Sockets error processing " + loggedAs +
                 " command: " + std::to_string(error.socketNumber));
            throw;
        }
    }

    /// The server and the two ends of the message, as the reports name them.
    std::string Route() const {
        constexpr std::size_t kMost = 50;
        return "(" + server_ + ") Msg From: " + message_.MailFrom.substr(0, kMost) +
               " Msg To: " + lastRecipient_.substr(0, kMost);
    }

    MessageFields& message_;
    const std::string& heloName_;
    const MailEnvironment& environment_;
    const ActivityLog& log_;
    std::string server_;
    std::string lastRecipient_;
    Connection connection_;
};

}  // namespace

ReplyScanner::ReplyScanner(std::string_view replyCodeSet) : codes_(SplitList(replyCodeSet, ',')) {
    for (const std::string_view code : codes_)
        longest_ = std::max(longest_, code.size());
}

std::string_view ReplyScanner::Add(std::string_view piece) {
    if (!piece.empty() && piece.back() == '\0')
        piece.remove_suffix(1);
    text_ += piece;
    const auto found = std::find_if(codes_.begin(), codes_.end(), [this](std::string_view code) {
        return text_.find(code) != std::string::npos;
    });
    if (found != codes_.end())
        return *found;
    text_.erase(0, text_.size() - std::min(text_.size(), longest_ - 1));
    return {};
}

long MinuteBoundariesBetween(const LocalTime& start, const LocalTime& now) {
    return static_cast<long>((MinuteOf(now) - MinuteOf(start)).count());
}

std::string WaitForReply(SocketHandle socket, std::string_view replyCodeSet, const Clock& clock,
                         const LocalTime& start) {
    ReplyScanner scanner(replyCodeSet);
    std::vector<char> buffer;
    while (MinuteBoundariesBetween(start, clock()) < 1) {
        const std::string_view piece = ReceiveWaiting(socket, buffer);
        if (piece.empty()) {
            // Busy-wait on purpose; yields to other threads and programs.
            std::this_thread::yield();
            continue;
        }
        const std::string_view code = scanner.Add(piece);
        if (!code.empty())
            return std::string(code);
    }
    return {};
}

std::string SMTPProcessClientCommand(SocketHandle socket, std::string_view command,
                                     std::string_view replyCodeSet, const Clock& clock,
                                     std::string& ErrorString) {
    const LocalTime start = clock();
    const bool tookNothing = !command.empty() && SendAll(socket, command) == 0;
    if (replyCodeSet.empty())
        return {};
    if (tookNothing)
        return std::string(kGeneralError);
    try {
        return WaitForReply(socket, replyCodeSet, clock, start);
    } catch (const ReceiveError& error) {
        ErrorString = "Windows Sockets error processing " + std::string(command) +
                      " command: " + std::to_string(error.socketNumber);
        throw;
    }
}

bool DeliverMessage(MessageFields& message, const std::string& heloName,
                    const MailEnvironment& environment, const ActivityLog& log,
                    const std::vector<std::string>& recipients, std::string text) {
    return SmtpDialogue(message, heloName, environment, log).Deliver(recipients, std::move(text));
}

}  // namespace cvlang
