#include "mail/Message.h"

#include <gmock/gmock.h>

#include <array>
#include <regex>
#include <sstream>

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

using testing::EndsWith, testing::StartsWith;

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

/// A message as it goes over the wire.
std::string Expected(const std::string& name) {
    return FileBytes(MESSAGES + name + ".eml");
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
    EXPECT_EQ(mail.message.ComposeText(), Expected("headers"));
    mail.message.ClearHeaders();
    mail.message.AddHeader("x-MAILER: mine\r\nMessage-Id: <mine>");
    mail.message.ContentType = "text/plain";
    EXPECT_EQ(mail.message.ComposeText(), Expected("own-headers"));
}

TEST(Message, EveryContentHasItsLayout) {
    const std::array<std::string, 4> cases[] = {
        {"html", "text/html;", "", ""},
        {"html-and-attachments", "text/html;", "given", "none"},
        {"text-and-attachment", "", "", "a.map"}};
    for (const auto& [name, type, plain, file] : cases) {
        MailFixture mail;
        PutFile("a.map", "foobar");
        mail.message.ContentType = type;
        mail.message.MessageBody = "<p>1<br>2";
        mail.message.MessageBodyPlain = plain;
        mail.message.AttachmentFileName = file;
        mail.message.Attachmentname = "shown";
        if (file == "none") {
            mail.message.AddAttachment((mail.fake.folder / "a.map").string(), "");
            mail.message.AddAttachment(file, "shown");
        }
        EXPECT_EQ(mail.message.ComposeText(), Expected(name));
        PutFile("a.map", std::string(3000000, 'x'));
        EXPECT_EQ(mail.message.ComposeText().size() > 4000000, !file.empty());
    }
}

TEST(Message, WithoutAnyFileInTheCurrentFolderAttachmentsAreAnnounced) {
    MailFixture mail;
    mail.message.AddHeader("Message-ID: <mine>");
    std::filesystem::remove(mail.fake.folder / "any");
    for (const bool logged : {false, true}) {  // with the same boundary
        mail.message.NoEventLog = !logged;
        EXPECT_EQ(mail.message.ComposeText(), Expected("announced"));
        EXPECT_THAT(mail.fake.ErrorLog(),
                    EndsWith(logged ? "\tAttachment () Not Found\r\n" : "(no file)"));
    }
}

TEST(Message, SetDefaultEmptiesAllButTheFlagsAndWhatIsMissingIsReported) {
    MailFixture mail;
    Message& message = mail.message;
    message.AddAttachment("a", "b");
    message.AddHeader("X: y");
    message.NoEventLog = message.MIMEEncode = message.HTML = true;
    message.SetDefault();
    EXPECT_EQ(std::tuple(message.NoEventLog, message.MIMEEncode, message.HTML),
              std::tuple(true, true, true));
    EXPECT_THAT(message.ComposeText(), StartsWith("From: <>\r\nTo: \r\nSubject: \r\n"));
    for (const auto& domain : {Utf16ToAnsi(GetLocalComputerName()), std::string("configured")}) {
        EXPECT_THAT(message.ComposeText(), EndsWith(".MAI@" + domain + ">\r\n\r\n"));
        mail.fake.registry.strings[u"SMTPLocalDomainName"] = u"configured";
    }
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

    /// What the client sent.
    std::string Conversation() {
        return Replaced(Received(), "From: [^]*\r\n\r\nHello\r\n\\.", "(message)");
    }
};

TEST(SmtpDialogue, EveryReplyLeadsToItsConversation) {
    // What is missing to log in (and there are three recipients if it is the user), the replies,
    // and those that may be the last.
    const std::string nul(1, '\0');
    const std::array<std::string, 3> cases[] = {
        {"mode", "", "421,554"},
        {"mode", "", "220 421|250|250|250|354|250"},
        {"mode", nul + "220" + nul + "||250|550 1250|354|", "250"},
        {"mode", "220|500|", "552,451,452,500,501,421"},
        {"mode", "220|250|", "550,553,554"},  // not waited for
        {"mode", "220|250|250|", "550,551,552,553,450,451,452,500,501,503,421"},
        {"mode", "220|250|250|250|", "250,500,503"},
        {"mode", "220|250|250|250|", "|250,250 354|250,354 500|554 250"},
        {"mode", "220|250|250|250|354|", ",451,500"},
        {"user", "220|250|250|550|251||354|", "250"},
        {"user", "220|250|250|550|450|", ""},
        {"", "220|250|334|235|", "552"},
        {"", "220|250|500|552|", "552"},
        {"", "220|250|334|", "504"},
        {"", "220|250|", ""},
        {"password", "220|250|", "552"}};
    std::ostringstream conversations;
    for (const auto& [missing, replies, last] : cases) {
        for (const std::string_view code : SplitList(last, ',')) {
            const std::string script = replies + std::string(code);
            Delivery delivery(script);
            Message& message = delivery.message;
            message.MailCC = missing == "user" ? "c@x" : "";
            message.MailBCC = missing == "user" ? std::string(60, 'T') + ";b@x" : "";
            message.AuthenticationMode = missing == "mode" ? 0 : 1;
            message.Username.erase(missing == "user" ? 0 : 4);
            message.Password.erase(missing == "password" ? 0 : 4);
            message.FailedRecipients = missing == "user" ? "earlier@x" : "";
            const int result = message.SendMessage();
            conversations << "Server: " << testing::PrintToString(script)
                          << ", not given: " << missing << "\n"
                          << delivery.Conversation() << "Result: " << result << " "
                          << message.ErrorString << "\nFailed: " << message.FailedRecipients
                          << "\nLog:\n"
                          << delivery.Log() << "\n";
            EXPECT_EQ(delivery.eventsProcessed, 1);
        }
    }
    EXPECT_EQ(conversations.str(), FileBytes(MESSAGES "conversations.txt"));
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
    mail.message.ServerPort = 1;
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
    std::string error;
    EXPECT_THROW(SMTPProcessClientCommand(kNoSocket, "NOOP", "250", FakeProgram::FixedClock, error),
                 ReceiveError);
    EXPECT_THAT(error, StartsWith("Windows Sockets error processing NOOP command: "));
    EXPECT_EQ(MinuteBoundariesBetween({2004, 2, 28, 23, 59, 59}, {2004, 3, 1, 0, 0, 0}), 1441);
}

}  // namespace cvlang::tests
