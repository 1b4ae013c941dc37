#include "mail/SmtpDialogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "MailFixture.h"
#include "ScriptedPeer.h"
#include "mail/SmtpConnection.h"

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

/// A message on its way to a scripted peer.
struct Delivery : ScriptedPeer, MailFixture {
    explicit Delivery(const std::string& script, Ending ending = Ending::Listen)
        : ScriptedPeer(script, ending), MailFixture(ClientsClock()) {
        message.Server = "127.0.0.1";
        message.ServerPort = Port();
    }

    /// The lines of the activity log, without their times.
    std::vector<std::string> LogEvents() const {
        std::vector<std::string> events;
        std::istringstream log(fake.ErrorLog());
        for (std::string line; std::getline(log, line);)
            events.push_back(line.substr(line.find('\t') + 1, line.size() - line.find('\t') - 2));
        return events;
    }

    /// What the client sent, with "|" for a line's end and "#" for the message.
    std::string Conversation() {
        std::string text = Received();
        guids = 0;
        text = Replaced(text, message.ComposeText() + "\r\n.\r\n", "#|");
        return Replaced(text, "\r\n", "|");
    }
};

TEST(SmtpDialogue, EveryReplyLeadsToItsConversation) {
    const std::string helo = "HELO me|", named = helo + "AUTH LOGIN dXNlcg==|";
    const std::string login = named + "cGFzcw==|", mail = "MAIL FROM:<f@here>|";
    const std::string rcpt = helo + mail + "RCPT TO:<t@x>|", all = rcpt + "DATA|#|QUIT|";
    const std::string three = rcpt + "RCPT TO:<c@x>|RCPT TO:<b@x>|";
    const std::string address(60, 'a');
    const std::tuple<std::string, std::string, std::string, std::string> cases[] = {
        {"t@x", std::string(1, '\0') + "220" + '\0' + "|250|250|250|354|250", all, kSent + "t@x"},
        {"t@x", "220|500|", helo + mail, kNoSender},
        {"t@x", "421 closed", "", kNoGreeting},
        {"t@x", "220||250|250|354|250", all, kSent + "t@x"},
        {"t@x", "220|250|552", helo + mail, kNoSender + "552"},
        {"t@x", "220|250|250|250|250", rcpt + "DATA|QUIT|", kFailed},
        {"t@x", "220|250|250|250||250", all, kSent + "t@x"},
        {"t@x", "220|250|250|250|354|451", all, kFailed},
        {"t@x", "220|250|250|250|354|", all, kFailed},
        {"t@x;c@x", "220|250|250|550|251||354|250", three + "DATA|#|QUIT|", kSent + "b@x"},
        {"t@x;c@x", "220|250|250|550|450|", three, kNoRecipient},
        {address, "220|250|250|250|354|250",
         Replaced(Replaced(all, "t@x", address), "f@here", address),
         Replaced(kSent + "f@here", "f@here", address.substr(0, 50))},
        {"user", "220|250|334|235|552", login + mail, kNoSender + "552"},
        {"user", "220|250|500|552|552", login + mail, kNoSender + "552"},
        {"user", "220|250|334|504", login, kNoAccess + "504"},
        {"user", "220|250|", named, kNoAccess},
        {"no password", "220|250|552", helo + mail, kNoSender + "552"}};
    for (const auto& [to, script, conversation, outcome] : cases) {
        Delivery delivery(script);
        delivery.message.MailTo = to.substr(0, to.find(';'));
        delivery.message.MailCC = to == "t@x;c@x" ? "c@x" : "";
        if (to == address)
            delivery.message.MailFrom = address;
        delivery.message.MailBCC = to == "t@x;c@x" ? "T@X;b@x" : "";
        delivery.message.AuthenticationMode = to == "t@x" ? 0 : 1;
        delivery.message.Username = to != address && to != "t@x;c@x" ? "user" : "";
        delivery.message.Password = to == "no password" ? "" : "pass";
        const bool sent = outcome.rfind("Sent", 0) == 0;
        EXPECT_EQ(delivery.message.SendMessage(), sent ? 1 : 0);
        EXPECT_EQ(delivery.message.ErrorString, outcome);
        EXPECT_EQ(delivery.LogEvents().back(), outcome);
        EXPECT_EQ(delivery.LogEvents().front(),
                  to != "t@x;c@x" ? outcome
                                  : "Recipient failed to server (127.0.0.1) Msg From: f@here Msg "
                                    "To: t@x");
        EXPECT_EQ(delivery.message.FailedRecipients, to != "t@x;c@x"           ? ""
                                                     : outcome == kNoRecipient ? "t@x,c@x,b@x"
                                                                               : "t@x,b@x");
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
    const std::pair<std::string, std::string> stages[] = {
        {"", ""},
        {"220", "HELO me"},
        {"220|250", "AUTH LOGIN"},
        {"220|250|334", "password"},
        {"220|250|334|235", "MAIL FROM:<f@here>"},
        {"220|250|334|235|250", "RCPT TO:<t@x>"},
        {"220|250|334|235|250|250", "DATA"},
        {"220|250|334|235|250|250|354", "message text"}};
    for (const auto& [script, command] : stages) {
        for (const Ending ending : {Ending::Close, Ending::Reset}) {
            Delivery delivery(script, ending);
            delivery.message.AuthenticationMode = 1;
            delivery.message.Username = delivery.message.Password = "secret";
            EXPECT_EQ(delivery.message.SendMessage(), 0);
            const std::string& outcome = delivery.message.ErrorString;
            const bool failed = outcome.starts_with("Windows Sockets error 1");
            EXPECT_TRUE(failed || ending == Ending::Close || !kNetworkIsComplete)
                << command << ": " << outcome;
            EXPECT_EQ(delivery.LogEvents().back(),
                      failed ? "Windows Sockets error processing " + command +
                                   " command: " + outcome.substr(outcome.rfind(' ') + 1)
                             : outcome);
        }
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
        EXPECT_THAT(
            mail.message.ErrorString,
            testing::StartsWith("Failed to connect to mail server: Windows Sockets error 1"));
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
