#include "mail/Message.h"

#include <gtest/gtest.h>

#include <regex>

#include "ScriptedPeer.h"
#include "mail/MailError.h"
#include "mail/SmtpDialogue.h"
#include "platform/Ansi.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

/// A message to be sent, in surroundings that stand still.
struct MailFixture {
    explicit MailFixture(Clock clock = FakeProgram::FixedClock)
        : message(
              fake.config, fake.logs,
              {.clock = std::move(clock),
               .newGuid =
                   [this] {
                       return Guid{++guids, 0xAA, 0xBB, {0, 9, 0x0A, 0x0F, 0x10, 0x1E, 0xA0, 0xFF}};
                   },
               .timeZone =
                   [] {
                       return TimeZoneInformation{-60, 0, 0, ZoneTime::Unknown};
                   },
               .processPendingEvents = [this] { ++eventsProcessed; }}) {
        PutFile(fake.folder / "any", "");
        message.MailFrom = "f@here";
        message.MailTo = "t@x";
        message.MessageBody = "Hello";
        message.LocalDomainName = "me";
    }

    FakeProgram fake;
    std::uint32_t guids = 0;
    int eventsProcessed = 0;
    Message message;
};

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

// Texts are written with single line breaks.
const std::string kOuter = "--=_NextPart_000_000B_00000001.00AA00BB";
const std::string kInner = "--=_NextPart_000_000B_00000002.00AA00BB";
const std::string kTextPart =
    "Content-type: text/plain; charset=\"US-ASCII\"\nContent-transfer-encoding: 7bit\n\n";
const std::string kMixed =
    "MIME-Version: 1.0\nContent-Type: multipart/mixed;\n\tboundary=\"" + kOuter + "\"\n\n";

std::string Alternatives(const std::string& boundary, const std::string& plain) {
    return "--" + boundary + "\n" + kTextPart + plain + "\n\n--" + boundary + "\n" +
           Replaced(kTextPart, "plain", "html") + "<p>1<br>2\n\n--" + boundary + "--\n";
}

std::string Attached(const std::string& parameter, const std::string& name,
                     const std::string& text) {
    return "\n\n--" + kOuter + "\nContent-Type: application/octet-stream; " + parameter + "=\"" +
           name + "\"\nContent-Transfer-Encoding: base64\nContent-Disposition: attachment;\n" +
           "\tfilename=\"" + name + "\"\n\n" + text;
}

/// The message with single line breaks, from this text on.
std::string TextFrom(Message& message, const std::string& start) {
    const std::string text = Replaced(message.ComposeText(), "\r\n", "\n");
    return text.substr(text.find(start));
}

TEST(Message, HeadersArePairedFoldedAndCompleted) {
    MailFixture mail;
    mail.message.MailFromDisplayName = "Me";
    mail.message.MailTo = " a@x ;b@x;c@x ";
    mail.message.MailToDisplayName = "A;B B";
    mail.message.MailCC = "d@x";
    mail.message.MailBCC = "secret@x";
    mail.message.Subject = "S\xE9";
    mail.message.AddHeader("X-One: 1");
    mail.message.AddHeader("");
    const std::string start =
        "From: \"Me\" <f@here>\nTo: \"A\" <a@x>, \n\t\"B B\" <b@x>, \n\tc@x\nCC: d@x\n"
        "Subject: S\xE9\nDate: Sun, 7 Mar 2004 09:05:03 +0100\n";
    const std::string own =
        "X-Mailer: Corvane\nMessage-ID: <0000000100AA00BB0009AF101EA0FF.MAI@me>\n";
    EXPECT_EQ(TextFrom(mail.message, ""), start + own + "X-One: 1\n\nHello");
    mail.message.ClearHeaders();
    mail.message.AddHeader("x-MAILER: mine\r\nMessage-Id: <mine>");
    mail.message.ContentType = "text/plain";
    EXPECT_EQ(TextFrom(mail.message, ""),
              start + "Content-Type: text/plain\nx-MAILER: mine\nMessage-Id: <mine>\n\nHello");
}

TEST(Message, EveryContentHasItsLayout) {
    const std::string end = "\n\n--" + kOuter + "--\n";
    const std::tuple<bool, std::string, std::string, std::string> cases[] = {
        {true, "", "", Replaced(kMixed, "mixed", "alternative") + Alternatives(kOuter, "1\n2")},
        {true, "given", "none",
         kMixed + "--" + kOuter + "\nContent-type: multipart/alternative; boundary=\"" + kInner +
             "\"\n\n" + Alternatives(kInner, "given") + "\n" +
             Attached("name", "a.map", "Zm9vYmFy") + Attached("name", "shown", "") + end},
        {false, "", "a.map",
         kMixed + "--" + kOuter + "\n" + kTextPart + "<p>1<br>2" +
             Attached("Name", "shown", "Zm9vYmFy") + end}};
    for (const auto& [html, plain, file, text] : cases) {
        MailFixture mail;
        PutFile("a.map", "foobar");
        mail.message.ContentType = html ? "text/html;" : "";
        mail.message.MessageBody = "<p>1<br>2";
        mail.message.MessageBodyPlain = plain;
        mail.message.AttachmentFileName = file;
        mail.message.Attachmentname = "shown";
        if (file == "none") {
            mail.message.AddAttachment((mail.fake.folder / "a.map").string(), "");
            mail.message.AddAttachment(file, "shown");
        }
        EXPECT_EQ(TextFrom(mail.message, "MIME-Version"), text);
    }
}

TEST(Message, WithoutAnyFileInTheCurrentFolderAttachmentsAreAnnounced) {
    MailFixture mail;
    std::filesystem::remove(mail.fake.folder / "any");
    for (const bool logged : {false, true}) {  // with the same boundary
        mail.message.NoEventLog = !logged;
        EXPECT_EQ(TextFrom(mail.message, "MIME-Version"), kMixed + "Hello");
        EXPECT_EQ(mail.fake.ErrorLog().ends_with("\tAttachment () Not Found\r\n"), logged);
    }
}

TEST(Message, SetDefaultEmptiesAllButTheFlagsAndWhatIsMissingIsTold) {
    MailFixture mail;
    Message& message = mail.message;
    message.AddAttachment("a", "b");
    message.AddHeader("X: y");
    message.NoEventLog = message.MIMEEncode = message.HTML = true;
    message.SetDefault();
    EXPECT_TRUE(message.NoEventLog && message.MIMEEncode && message.HTML);
    EXPECT_TRUE(TextFrom(message, "").starts_with("From: <>\nTo: \nSubject: \n"));
    const std::string computer = Utf16ToAnsi(GetLocalComputerName());
    EXPECT_EQ(TextFrom(message, ".MAI"), ".MAI@" + computer + ">\n\n");
    mail.fake.registry.strings[u"SMTPLocalDomainName"] = u"configured";
    EXPECT_EQ(TextFrom(message, ".MAI"), ".MAI@configured>\n\n");
    EXPECT_THROW(message.AddAttachment("  ", "name"), MailError);
    EXPECT_EQ(message.ErrorString, "You must specify a filename for the attachment.");
    for (const char* missing : {"From", "To"}) {
        EXPECT_EQ(message.SendMessage(), 0);
        EXPECT_EQ(message.ErrorString, std::string("No ") + missing + ": address given");
        message.MailFrom = "f@here";
    }
}

const std::string kSent = "Sent email to (127.0.0.1) Msg From: f@here Msg To: ";
const std::string kFailed =
    "Failed to send email to (127.0.0.1) Msg From: f@here Msg To: t@x. For more information, "
    "please check your SMTP Debug and Activity Logs";
const std::string kNoGreeting = "SMTP Server is not contactable for domain: 127.0.0.1";
const std::string kNoAccess = "Could not Authenticate against remote host; Server returned: ";
const std::string kNoSender = "Invalid Sender Address (f@here); Server returned: ";
const std::string kNoRecipient = "Could not send to any valid recipients";

const std::string kRefused = "Recipient failed to server (127.0.0.1) Msg From: f@here Msg To: ";

/// A message on its way to a scripted peer.
struct Delivery : ScriptedPeer, MailFixture {
    explicit Delivery(const std::string& script, Ending ending = Ending::Listen)
        : ScriptedPeer(script, ending), MailFixture(ClientsClock()) {
        message.Server = "127.0.0.1";
        message.ServerPort = Port();
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
        return Replaced(std::regex_replace(Received(), sentMessage, "#|"), "\r\n", "|");
    }
};

TEST(SmtpDialogue, EveryReplyLeadsToItsConversation) {
    const std::string helo = "HELO me|", named = helo + "AUTH LOGIN dXNlcg==|";
    const std::string login = named + "cGFzcw==|", mail = "MAIL FROM:<f@here>|";
    const std::string rcpt = helo + mail + "RCPT TO:<t@x>|", all = rcpt + "DATA|#|QUIT|";
    const std::string three = rcpt + "RCPT TO:<c@x>|RCPT TO:<b@x>|";
    const std::string address(60, 'a'), nul(1, '\0');
    const std::tuple<std::string, std::string, std::string, std::string, std::string> cases[] = {
        {"", nul + "220" + nul + "|250|250|550 1250|354|250", all, kSent + "t@x", ""},
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
        const std::string refused = failed.empty() ? "" : failed + ",";
        std::string log = std::regex_replace(refused, std::regex("([^,]*),"), kRefused + "$1\n");
        log += outcome + "\n";
        EXPECT_EQ(delivery.Log(), log);
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
    mail.message.SetDefault();
    EXPECT_EQ(mail.message.ServerPort, 25);
}

TEST(SmtpReply, TheSetsOrderDecidesAmongTheCodesUntilTheMinuteEnds) {
    ReplyScanner scanner("250,550");
    EXPECT_EQ(scanner.Add({"25\0", 3}), "");
    EXPECT_EQ(scanner.Add("0"), "250");
    EXPECT_EQ(ReplyScanner("250,550").Add("550 1250"), "250");
    EXPECT_EQ(MinuteBoundariesBetween({2004, 2, 28, 23, 59, 59}, {2004, 3, 1, 0, 0, 0}), 1441);
}

}  // namespace
}  // namespace cvlang
