#include "mail/Message.h"

#include <gmock/gmock.h>

#include <array>
#include <regex>

#include "mail/Base64.h"
#include "mail/MailError.h"
#include "mail/SmtpDialogue.h"
#include "support/FakeProgram.h"
#include "support/LoopbackPeer.h"

namespace cvlang::tests {

TEST(MailDate, TheZoneOfThePresentTimeRoundsItsHoursAndSignsBothFields) {
    const std::pair<TimeZoneInformation, const char*> cases[] = {
        {{0, 7, 9, ZoneTime::Unknown}, "+0000"},
        {{-330, 7, 9, ZoneTime::Unknown}, "+0630"},
        {{210, 7, 9, ZoneTime::Unknown}, "-04-30"},
        {{-345, 7, 9, ZoneTime::Unknown}, "+0645"},
        {{-60, -60, -120, ZoneTime::Standard}, "+0200"},
        {{-60, -60, -120, ZoneTime::Daylight}, "+0300"}};
    for (const auto& [zone, text] : cases)
        EXPECT_EQ(FormatMailDate({2004, 3, 7, 9, 5, 3}, zone),
                  std::string("Sun, 7 Mar 2004 09:05:03 ") + text);
    std::string names;
    for (int i = 0; i < 12; ++i)
        names.append(GetDayName({2004, 3, 7 + i, 0, 0, 0}))
            .append(GetMonthName({2004, i + 1, 1, 0, 0, 0}));
    EXPECT_EQ(names, "SunJanMonFebTueMarWedAprThuMayFriJunSatJulSunAugMonSepTueOctWedNovThuDec");
}

TEST(MimeNames, AreConstantWithoutAGuid) {
    const auto none = [] { return std::optional<Guid>(); };
    EXPECT_EQ(NewMIMEBoundary(none), "--=_NextPart_000_000B_01C0D501.82E05F40");
    EXPECT_EQ(NewMessageFileName(none), "00000000.MAI");
}

TEST(AddressList, RepeatedAddressesAreDroppedAndSeveralListsBecomeOne) {
    const std::pair<const char*, const char*> cases[] = {{"a@x;A@X", "a@x"},
                                                         {"b@x;a@x;A@X", "b@x;a@x;A@X"},
                                                         {"A@x;b@x;a@X;c@x", "A@x;b@x;c@x"},
                                                         {"a@x,b@x,A@X", "a@x,b@x"},
                                                         {"a@x,a@x;b@x", "a@x,a@x;b@x"},
                                                         {"ba@x;c@x;a@x", "ba@x;c@x"},
                                                         {";;a@x;;", "a@x;"}};
    for (const auto& [list, merged] : cases)
        EXPECT_EQ(MergeAddressList(list), merged);
    const std::vector<std::string> both{"a@x", "b@x"}, all{"a@x", "b@x", "c@x", "A@x"};
    EXPECT_EQ(MergedAddresses({" a@x ;b@x;", "", "c@x;A@x"}), all);
    EXPECT_EQ(MergedAddresses({"a@x, b@x", "", ""}), both);
    EXPECT_EQ(GetAddressDomain("a@b@c"), "b@c");
    EXPECT_EQ(GetAddressDomain("a"), "(unknown)");
}

TEST(Base64, EveryLengthAndEveryByteGoesThereAndBackInLines) {
    std::string bytes;
    for (std::size_t size = 0; size < 400; ++size, bytes += static_cast<char>(size * 7)) {
        const std::string text = Base64::EncodeByteArr(bytes);
        ASSERT_EQ(Base64::DecodeToByteArr(text), bytes);
        ASSERT_EQ(text.size(), Base64::EncodedSize(size));
    }
    // A full line is followed by a line break unless it is the only one.
    const std::string line(76, 'A');
    EXPECT_EQ(Base64::EncodeByteArr(std::string(57, '\0')), line);
    EXPECT_EQ(Base64::EncodeByteArr(std::string(58, '\0')), line + "\r\nAA==");
    EXPECT_EQ(Base64::EncodeByteArr(std::string(114, '\0')), line + "\r\n" + line + "\r\n");
    // Line breaks and padding are skipped, and foreign characters are zero bits.
    EXPECT_EQ(Base64::DecodeToByteArr("Z=m\r\n9v\r\nYg=="), "foob");
    EXPECT_EQ(Base64::DecodeToByteArr("\nm\xE9v"), Base64::DecodeToByteArr("AmAv"));
}

TEST(Base64, FilesAreReadAndNeverOverwritten) {
    const TemporaryFolder folder;
    ASSERT_TRUE(Base64::DecodeToFile("DQr/", folder / "new"));
    EXPECT_THROW(Base64::DecodeToFile("Zm9v", folder / "new"), MailError);
    EXPECT_EQ(FileBytes(folder / "new"), "\r\n\xFF");
    EXPECT_EQ(Base64::EncodeFile(folder / "new"), "DQr/");
    EXPECT_EQ(Base64::EncodeFile(folder / "none"), "");
}

TEST(HtmlToText, MarkupBecomesPlainText) {
    const std::pair<const char*, const char*> cases[] = {
        {"a\r\nb<BR>c<br/>d", "ab\r\ncd"},
        {"a&NBSP;b&amp;", "a b&amp;"},
        {"x<Title>A <b></TITLE>y", "xy"},
        {"x<Title>A</TITLE>y<title>a</title>z", "xyz"},
        {"1<style t>b{}</STYLE>2<STYLE T>B{}</style>3<style>c</style>", "123c"},
        {"</style>1<style>a", "1a"},
        {"<title><title><title>x", "x"},
        {"1<script>if (a<b)</script>2", "12"},
        {"<tr><td>a<TD x>b</td><div>c<LI x>d", "\r\na\r\nb\r\nc\r\nd"},
        {"<a <b>c>d < e", "c>d < e"},
        {"> <b>1<a <B>c>2", "> 12"}};
    for (const auto& [html, text] : cases)
        EXPECT_EQ(HTMLToText(html, LineBreaks::Kept), text) << html;
    EXPECT_EQ(HTMLToText("a<br>b<div>c", LineBreaks::AsMarkup), "a<BR>b<BR>c");
}

using testing::Each, testing::EndsWith, testing::StartsWith;

constexpr TimeZoneInformation kZone{-60, 0, 0, ZoneTime::Unknown};

/// A message to be sent, at a fixed time.
struct MailFixture {
    explicit MailFixture(Clock clock = FakeProgram::FixedClock)
        : message(fake.config, fake.logs,
                  {std::move(clock), [this] { return NextGuid(); }, [] { return kZone; },
                   [this] { ++eventsProcessed; }}) {
        PutFile(fake.folder / "any", "");
        message.MailFrom = "f@here";
        message.MailTo = "t@x";
        message.MessageBody = "Hello";
        message.LocalDomainName = "me";
    }

    Guid NextGuid() { return {++guids, 0xAA, 0xBB, {0, 9, 0x0A, 0x0F, 0x10, 0x1E, 0xA0, 0xFF}}; }

    FakeProgram fake;
    std::uint32_t guids = 0;
    int eventsProcessed = 0;
    Message message;
};

std::string Replaced(const std::string& text, const std::string& what, const std::string& by) {
    return std::regex_replace(text, std::regex(what), by);
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
    EXPECT_THAT((std::array{message.NoEventLog, message.MIMEEncode, message.HTML}), Each(true));
    EXPECT_THAT(TextFrom(message, ""), StartsWith("From: <>\nTo: \nSubject: \n"));
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

// Longer than what reports show of them.
const std::string kFrom(60, 'f');
const std::string kTo(60, 't');
const std::string kRoute = "(127.0.0.1) Msg From: " + kFrom.substr(0, 50) + " Msg To: ";
const std::string kSent = "Sent email to " + kRoute;
const std::string kFailed = "Failed to send email to " + kRoute + kTo.substr(0, 50) +
                            ". For more information, please check your SMTP Debug and Activity "
                            "Logs";
const std::string kNoGreeting = "SMTP Server is not contactable for domain: 127.0.0.1";
const std::string kNoAccess = "Could not Authenticate against remote host; Server returned: ";
const std::string kNoSender = "Invalid Sender Address (" + kFrom + "); Server returned: ";
const std::string kNoRecipient = "Could not send to any valid recipients";

/// A message on its way to a scripted peer.
struct Delivery : ScriptedPeer, MailFixture {
    explicit Delivery(const std::string& script, Ending ending = Ending::Listen)
        : ScriptedPeer(script, ending), MailFixture(ClientsClock()) {
        message.Server = "127.0.0.1";
        message.ServerPort = Port();
        message.MailFrom = kFrom;
        message.MailTo = kTo;
        message.Username = "user";
        message.Password = "pass";
        message.AuthenticationMode = 1;
    }

    /// The lines of the activity log, without their times.
    std::string Log() const { return Replaced(fake.ErrorLog(), "[^\n]*\t|\r", ""); }

    /// What the client sent, with "|" for a line's end and "#" for the message.
    std::string Conversation() {
        return Replaced(Replaced(Received(), "From: [^]*\r\n\r\nHello\r\n\\.", "#"), "\r\n", "|");
    }
};

TEST(SmtpDialogue, EveryReplyLeadsToItsConversation) {
    const std::string helo = "HELO me|", named = helo + "AUTH LOGIN dXNlcg==|";
    const std::string login = named + "cGFzcw==|", mail = "MAIL FROM:<" + kFrom + ">|";
    const std::string rcpt = helo + mail + "RCPT TO:<" + kTo + ">|", data = rcpt + "DATA|";
    const std::string all = data + "#|QUIT|", three = rcpt + "RCPT TO:<c@x>|RCPT TO:<b@x>|";
    const std::string sent = kSent + kTo.substr(0, 50), nul(1, '\0');
    // What is missing to log in (and there are three recipients if it is the user), the replies,
    // those that may be the last, and what comes of them.
    const std::array<std::string, 6> cases[] = {
        {"mode", "", "421,554", "", kNoGreeting, ""},
        {"mode", "", "220 421|250|250|250|354|250", all, sent, ""},
        {"mode", nul + "220" + nul + "||250|550 1250|354|", "250", all, sent, ""},
        {"mode", "220|500|", "552,451,452,500,501,421", helo + mail, kNoSender + "*", ""},
        {"mode", "220|250|", "550,553,554", helo + mail, kNoSender, ""},  // not waited for
        {"mode", "220|250|250|", "550,551,552,553,450,451,452,500,501,503,421", rcpt, kNoRecipient,
         kTo},
        {"mode", "220|250|250|250|", "250,500,503", data + "QUIT|", kFailed, ""},
        {"mode", "220|250|250|250|", "|250,250 354|250,354 500|554 250", all, sent, ""},
        {"mode", "220|250|250|250|354|", ",451,500", all, kFailed, ""},
        {"user", "220|250|250|550|251||354|", "250", three + "DATA|#|QUIT|", kSent + "b@x",
         kTo + ",b@x"},
        {"user", "220|250|250|550|450|", "", three, kNoRecipient, kTo + ",c@x,b@x"},
        {"", "220|250|334|235|", "552", login + mail, kNoSender + "*", ""},
        {"", "220|250|500|552|", "552", login + mail, kNoSender + "*", ""},
        {"", "220|250|334|", "504", login, kNoAccess + "*", ""},
        {"", "220|250|", "", named, kNoAccess, ""},
        {"password", "220|250|", "552", helo + mail, kNoSender + "*", ""}};
    for (const auto& [missing, replies, last, conversation, result, failed] : cases) {
        for (const std::string_view code : SplitList(last, ',')) {
            Delivery delivery(replies + std::string(code));
            Message& message = delivery.message;
            message.MailCC = missing == "user" ? "c@x" : "";
            message.MailBCC = missing == "user" ? std::string(60, 'T') + ";b@x" : "";
            message.AuthenticationMode = missing == "mode" ? 0 : 1;
            message.Username.erase(missing == "user" ? 0 : 4);
            message.Password.erase(missing == "password" ? 0 : 4);
            const std::string outcome = Replaced(result, "\\*", std::string(code));
            EXPECT_EQ(message.SendMessage(), outcome.starts_with("Sent") ? 1 : 0);
            EXPECT_EQ(message.ErrorString, outcome);
            EXPECT_EQ(message.FailedRecipients, failed);
            const std::string log =
                Replaced(Replaced(failed, "([^,]{1,50})[^,]*,?", "$1\n"), "(.+\n)",
                         "Recipient failed to server " + kRoute + "$1");
            EXPECT_EQ(delivery.Log(), log + outcome + "\n");
            EXPECT_EQ(delivery.Conversation(), conversation) << replies << code;
            EXPECT_EQ(delivery.eventsProcessed, 1);
        }
    }
}

TEST(SmtpDialogue, APeerThatIsGoneNeverEndsTheProgram) {
    const std::string script = "220|250|334|235|250|250|354|";
    const std::string mail = "MAIL FROM:<" + kFrom + ">", rcpt = "RCPT TO:<" + kTo + ">";
    std::size_t size = 0;
    for (const std::string& command : std::vector<std::string>{
             "", "HELO me", "AUTH LOGIN", "password", mail, rcpt, "DATA", "message text"}) {
        for (const Ending ending : {Ending::Close, Ending::Reset}) {
            Delivery delivery(script.substr(0, size), ending);
            EXPECT_EQ(delivery.message.SendMessage(), 0);
            const std::string& outcome = delivery.message.ErrorString;
            if (ending == Ending::Reset && kNetworkIsComplete) {
                EXPECT_THAT(outcome, StartsWith("Windows Sockets error 1")) << command;
            }
            const std::string named = "Sockets error processing " + command + " command:";
            EXPECT_THAT(delivery.Log(), EndsWith(Replaced(outcome, "Sockets error", named) + "\n"));
        }
        size += size == 0 ? 3 : 4;
    }
    Delivery delivery("220|250|334|235|250|250|354", Ending::ResetAtOnce);
    delivery.message.MessageBody.assign(20000000, 'x');
    EXPECT_EQ(delivery.message.SendMessage(), 0);
}

TEST(SmtpDialogue, AServerThatCannotBeReachedIsReported) {
    MailFixture mail;
    mail.message.ServerPort = LoopbackListener().Port();
    for (const char* server : {"127.0.0.1", "", "no-such-host.invalid"}) {
        mail.message.Server = server;
        EXPECT_EQ(mail.message.SendMessage(), 0);
        EXPECT_THAT(mail.message.ErrorString,
                    StartsWith("Failed to connect to mail server: Windows Sockets error 1"));
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

}  // namespace cvlang::tests
