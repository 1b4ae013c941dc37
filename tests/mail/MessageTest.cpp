#include "mail/Message.h"

#include <gtest/gtest.h>

#include "MailFixture.h"
#include "mail/MailError.h"
#include "platform/Ansi.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

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
        "X-Mailer: Corvane\nMessage-ID: <0000000100AA00BB0000000000000000.MAI@me>\n";
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
    EXPECT_EQ(message.ServerPort, 25);
    EXPECT_TRUE(message.NoEventLog && message.MIMEEncode && message.HTML);
    const std::string text = message.ComposeText();
    EXPECT_TRUE(text.starts_with("From: <>\r\nTo: \r\nSubject: \r\n"));
    EXPECT_TRUE(text.ends_with(".MAI@" + Utf16ToAnsi(GetLocalComputerName()) + ">\r\n\r\n"));
    mail.fake.registry.strings[u"SMTPLocalDomainName"] = u"configured";
    EXPECT_TRUE(message.ComposeText().ends_with(".MAI@configured>\r\n\r\n"));
    EXPECT_THROW(message.AddAttachment("  ", "name"), MailError);
    EXPECT_EQ(message.ErrorString, "You must specify a filename for the attachment.");
    for (const char* missing : {"From", "To"}) {
        EXPECT_EQ(message.SendMessage(), 0);
        EXPECT_EQ(message.ErrorString, std::string("No ") + missing + ": address given");
        message.MailFrom = "f@here";
    }
}

}  // namespace
}  // namespace cvlang
