#include "mail/SmtpDialogue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <regex>

#include "MailFixture.h"
#include "mail/HeaderValues.h"
#include "mail/SmtpConnection.h"
#include "support/LoopbackPeer.h"

namespace cvlang {
namespace {

const std::string kSent = "Sent email to (127.0.0.1) Msg From: f@here Msg To: ";
const std::string kFailed =
    "Failed to send email to (127.0.0.1) Msg From: f@here Msg To: t@x. For more information, "
    "please check your SMTP Debug and Activity Logs";
const std::string kNoGreeting = "SMTP Server is not contactable for domain: 127.0.0.1";
const std::string kNoAccess = "Could not Authenticate against remote host; Server returned: ";
const std::string kNoSender = "Invalid Sender Address (f@here); Server returned: ";
const std::string kNoRecipient = "Could not send to any valid recipients";

const std::string kRefused = "Recipient failed to server (127.0.0.1) Msg From: f@here Msg To: ";

/// What comes at the end of the script: the client is listened to until it goes; or it is left,
/// once it has sent one command more or (amid a message) at once.
enum class Ending { Listen, Close, Reset, ResetAtOnce };

/// A message on its way to a peer that follows a script. The script's replies are separated by "|".
/// The first one greets, each other one answers a command, or the message after a 354. Each goes
/// out byte by byte; an empty one lets the client's minute pass.
class Delivery : public MailFixture {
  public:
    explicit Delivery(std::string script, Ending ending = Ending::Listen)
        : MailFixture([this] { return ClientsTime(); }),
          script_(std::move(script)),
          ending_(ending) {
        message.Server = "127.0.0.1";
        message.ServerPort = peer_.Port();
        message.Username = "user";
        message.Password = "pass";
    }

    /// The lines of the activity log, without their times.
    std::string Log() const {
        return std::regex_replace(fake.ErrorLog(), std::regex("[^\n]*\t|\r"), "");
    }

    /// What the client sent, with "|" for a line's end and "#" for the message.
    std::string Conversation() {
        const std::regex sentMessage("From: [^]*\r\n\r\nHello\r\n\\.\r\n");
        return Replaced(std::regex_replace(peer_.Received(), sentMessage, "#|"), "\r\n", "|");
    }

  private:
    /// Stands still, but for silences and when the script is over. What is on its way then has the
    /// time to arrive: the client asks without a rest.
    LocalTime ClientsTime() {
        if (isOver_) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            ++seconds_;
        }
        return {2004, 3, 7, 9, seconds_ / 60, seconds_ % 60};
    }

    static bool ReceiveCommand(LoopbackPeer& peer, std::string_view answered) {
        return peer.ReceiveUntil(answered.starts_with("354") ? "\r\n.\r\n" : "\r\n");
    }

    void FollowScript(LoopbackPeer& peer) {
        const auto replies = SplitList(script_, '|');
        for (std::size_t i = 0; i < replies.size(); ++i) {
            if (i > 0 && !ReceiveCommand(peer, replies[i - 1]))
                break;
            seconds_ += replies[i].empty() && !script_.empty() ? 60 : 0;
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
    LoopbackPeer peer_{[this](LoopbackPeer& peer) { FollowScript(peer); }};
};

TEST(SmtpDialogue, EveryReplyLeadsToItsConversation) {
    const std::string helo = "HELO me|", named = helo + "AUTH LOGIN dXNlcg==|";
    const std::string login = named + "cGFzcw==|", mail = "MAIL FROM:<f@here>|";
    const std::string rcpt = helo + mail + "RCPT TO:<t@x>|", all = rcpt + "DATA|#|QUIT|";
    const std::string three = rcpt + "RCPT TO:<c@x>|RCPT TO:<b@x>|";
    const std::string address(60, 'a');
    const std::tuple<std::string, std::string, std::string, std::string, std::string> cases[] = {
        {"", std::string(1, '\0') + "220" + '\0' + "|250|250|250|354|250", all, kSent + "t@x", ""},
        {"", "220|500|", helo + mail, kNoSender, ""},
        {"", "421 closed", "", kNoGreeting, ""},
        {"", "220||250|250|354|250", all, kSent + "t@x", ""},
        {"", "220|250|250|250|250", rcpt + "DATA|QUIT|", kFailed, ""},
        {"", "220|250|250|250||250", all, kSent + "t@x", ""},
        {"", "220|250|250|250|354|", all, kFailed, ""},
        {"three", "220|250|250|550|251||354|250", three + "DATA|#|QUIT|", kSent + "b@x", "t@x,b@x"},
        {"three", "220|250|250|550|450|", three, kNoRecipient, "t@x,c@x,b@x"},
        {"long", "220|250|250|250|354|250",
         Replaced(Replaced(all, "t@x", address), "f@here", address),
         Replaced(kSent + "f@here", "f@here", address.substr(0, 50)), ""},
        {"login", "220|250|334|235|552", login + mail, kNoSender + "552", ""},
        {"login", "220|250|500|552|552", login + mail, kNoSender + "552", ""},
        {"login", "220|250|334|504", login, kNoAccess + "504", ""},
        {"login", "220|250|", named, kNoAccess, ""},
        {"no password", "220|250|552", helo + mail, kNoSender + "552", ""}};
    for (const auto& [kind, script, conversation, outcome, failed] : cases) {
        Delivery delivery(script);
        Message& message = delivery.message;
        message.MailCC = kind == "three" ? "c@x" : "";
        message.MailBCC = kind == "three" ? "T@X;b@x" : "";
        if (kind == "long")
            message.MailTo = message.MailFrom = address;
        message.AuthenticationMode = kind.empty() ? 0 : 1;
        if (kind == "three" || kind == "long")
            message.Username = "";
        if (kind == "no password")
            message.Password = "";
        EXPECT_EQ(message.SendMessage(), outcome.starts_with("Sent") ? 1 : 0);
        EXPECT_EQ(message.ErrorString, outcome);
        EXPECT_EQ(message.FailedRecipients, failed);
        std::string log = failed.empty() ? "" : failed + ",";
        log = std::regex_replace(log, std::regex("([^,]*),"), kRefused + "$1\n");
        EXPECT_EQ(delivery.Log(), log + outcome + "\n");
        EXPECT_EQ(delivery.Conversation(), conversation);
        EXPECT_EQ(delivery.eventsProcessed, 1);
    }
}

TEST(SmtpDialogue, EachCommandHasItsOwnCodesOfRefusal) {
    const std::tuple<std::string, std::vector<std::string>, std::string> cases[] = {
        {"220|250|", {"552", "451", "452", "500", "501", "421"}, kNoSender + "*"},
        {"220|250|", {"550", "553", "554"}, kNoSender},  // which MAIL does not wait for
        {"220|250|250|",
         {"550", "551", "552", "553", "450", "451", "452", "500", "501", "503", "421"},
         kNoRecipient},
        {"220|250|250|250|", {"250 354|250", "354 500|554 250"}, kSent + "t@x"},
        {"220|250|250|250|", {"250", "500", "503", "354|451", "354|500"}, kFailed},
        {"", {"220 421|250|250|250|354|250"}, kSent + "t@x"},
        {"", {"421", "554"}, kNoGreeting}};
    for (const auto& [start, codes, outcome] : cases) {
        for (const std::string& code : codes) {
            Delivery delivery(start + code);
            delivery.message.SendMessage();
            EXPECT_EQ(delivery.message.ErrorString, Replaced(outcome, "*", code)) << start << code;
        }
    }
}

TEST(SmtpDialogue, APeerThatIsGoneNeverEndsTheProgram) {
    const std::string script = "220|250|334|235|250|250|354|";
    std::size_t replies = 0;
    for (const std::string command : {"", "HELO me", "AUTH LOGIN", "password", "MAIL FROM:<f@here>",
                                      "RCPT TO:<t@x>", "DATA", "message text"}) {
        for (const Ending ending : {Ending::Close, Ending::Reset}) {
            Delivery delivery(replies == 0 ? "" : script.substr(0, 4 * replies - 1), ending);
            delivery.message.AuthenticationMode = 1;
            EXPECT_EQ(delivery.message.SendMessage(), 0);
            const std::string& outcome = delivery.message.ErrorString;
            const bool failed = outcome.starts_with("Windows Sockets error 1");
            EXPECT_TRUE(failed || ending == Ending::Close || !kNetworkIsComplete)
                << command << ": " << outcome;
            const std::string logged =
                failed ? Replaced(outcome, "error", "error processing " + command + " command:")
                       : outcome;
            EXPECT_TRUE(delivery.Log().ends_with(logged + "\n")) << logged;
        }
        ++replies;
    }
    Delivery delivery("220|250|250|250|354", Ending::ResetAtOnce);
    delivery.message.MessageBody.assign(20000000, 'x');
    EXPECT_EQ(delivery.message.SendMessage(), 0);
}

TEST(SmtpDialogue, AServerThatCannotBeReachedIsReported) {
    MailFixture mail;
    mail.message.ServerPort = LoopbackListener().Port();
    for (const char* server : {"127.0.0.1", "", "no-such-host.invalid"}) {
        mail.message.Server = server;
        EXPECT_EQ(mail.message.SendMessage(), 0);
        EXPECT_TRUE(mail.message.ErrorString.starts_with(
            "Failed to connect to mail server: Windows Sockets error 1"));
    }
    EXPECT_EQ(mail.eventsProcessed, 2);
    mail.message.ServerPort = 0;
    mail.message.SendMessage();
    EXPECT_EQ(mail.message.ServerPort, 25);
}

TEST(SmtpReply, TheSetsOrderDecidesAmongTheCodesUntilTheMinuteEnds) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"550 1250"}, "250"},
        {{"2", "5", "1", "255", "0"}, "550"},
        {{std::string("25\0", 3), "0"}, "250"},
        {{std::string("25\0\0", 4), "0"}, ""},
        {std::vector<std::string>(3000000, "22"), ""}};
    for (const auto& [pieces, found] : cases) {
        ReplyScanner scanner("250,550");
        std::string_view code;
        for (const std::string& piece : pieces)
            code = scanner.Add(piece);
        EXPECT_EQ(code, found);
    }
    EXPECT_EQ(MinuteBoundariesBetween({2004, 2, 28, 23, 59, 59}, {2004, 3, 1, 0, 0, 0}), 1441);
}

}  // namespace
}  // namespace cvlang
