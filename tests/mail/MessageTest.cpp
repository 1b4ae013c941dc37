#include "mail/Message.h"

#include <gtest/gtest.h>

#include "MailFixture.h"
#include "config/TextHelpers.h"
#include "mail/MailError.h"
#include "platform/Ansi.h"

namespace cvlang {
namespace {

/// The message's own headers replaced by what is left of them in a test: "..." and the MIME
/// headers.
std::string Shortened(const std::string& text) {
    const std::size_t end = text.find("@me>\r\n");
    return end == text.npos ? text : "..." + text.substr(end + 6);
}

/// A message as a test writes it: line breaks are single, {1} is the boundary made of the first
/// GUID, and words in braces stand for whole parts.
std::string Expected(std::string text) {
    const std::pair<const char*, const char*> parts[] = {
        {"{mixed}", "...MIME-Version: 1.0\nContent-Type: multipart/mixed;\n\tboundary=\"{1}\"\n\n"},
        {"{alternative}",
         "--{b}\n{type}plain{kind}\n1\n2\n\n--{b}\n{type}html{kind}\n<p>1<br>2\n\n--{b}--\n"},
        {"{text}", "--{1}\n{type}plain{kind}\nHello"},
        {"{end}", "\n\n--{1}--\n"},
        {"{attached}", "\n\n--{1}\nContent-Type: application/octet-stream; "},
        {"{encoded}",
         "Content-Transfer-Encoding: base64\nContent-Disposition: attachment;\n\tfilename="},
        {"{type}", "Content-type: text/"},
        {"{kind}", "; charset=\"US-ASCII\"\nContent-transfer-encoding: 7bit\n"},
        {"{1}", "--=_NextPart_000_000B_00000001.00AA00BB"},
        {"{2}", "--=_NextPart_000_000B_00000002.00AA00BB"},
        {"\n", "\r\n"}};
    const std::size_t inner = text.find("\"{2}\"");
    text = Replaced(text, parts[1].first,
                    Replaced(parts[1].second, "{b}", inner == text.npos ? "{1}" : "{2}"));
    for (const auto& [name, part] : parts)
        text = Replaced(text, name, part);
    return text;
}

TEST(Message, HeadersArePairedFoldedAndCompleted) {
    MailFixture mail;
    mail.message.MailFromDisplayName = "Me";
    mail.message.MailTo = " a@x ;b@x;c@x ";
    mail.message.MailToDisplayName = "A;B B";
    mail.message.MailCC = "d@x";
    mail.message.MailBCC = "secret@x";
    mail.message.Subject = "S\xE9";
    mail.message.ContentType = "text/plain";
    mail.message.AddHeader("X-One: 1");
    mail.message.AddHeader("");
    const std::string ends =
        "From: \"Me\" <f@here>\nTo: \"A\" <a@x>, \n\t\"B B\" <b@x>, \n\tc@x\nCC: d@x\n"
        "Subject: S\xE9\nDate: Sun, 7 Mar 2004 09:05:03 +0100\n";
    EXPECT_EQ(
        mail.message.ComposeText(),
        Expected(ends + "X-Mailer: Corvane\nMessage-ID: <0000000100AA00BB0000000000000000.MAI@me>\n"
                        "Content-Type: text/plain\nX-One: 1\n\nHello"));
    mail.message.ClearHeaders();
    mail.message.AddHeader("x-MAILER: mine\r\nMessage-Id: <mine>");
    EXPECT_EQ(
        mail.message.ComposeText(),
        Expected(ends + "Content-Type: text/plain\nx-MAILER: mine\nMessage-Id: <mine>\n\nHello"));
}

TEST(Message, EveryContentHasItsLayout) {
    const struct {
        const char *contentType, *body, *single, *attachment, *text;
    } cases[] = {
        {"", "Hello", "", "", "...\nHello"},
        {"text/html;", "<p>1<br>2", "", "",
         "...MIME-Version: 1.0\nContent-Type: "
         "multipart/alternative;\n\tboundary=\"{1}\"\n\n{alternative}"},
        {"x/y", "Hello", "", "a.map",
         "{mixed}{text}{attached}name=\"a.map\"\n{encoded}\"a.map\"\n\nZm9vYmFy{end}"},
        {"", "Hello", "", "none",
         "{mixed}{text}{attached}name=\"none\"\n{encoded}\"none\"\n\n{end}"},
        {"text/html;", "<p>1<br>2", "any", "a.map",
         "{mixed}--{1}\nContent-type: multipart/alternative; boundary=\"{2}\"\n\n{alternative}\n"
         "{attached}name=\"a.map\"\n{encoded}\"a.map\"\n\nZm9vYmFy{end}"},
        {"", "Hello", "a.map", "",
         "{mixed}{text}{attached}Name=\"shown\"\n{encoded}\"shown\"\n\nZm9vYmFy{end}"},
    };
    for (const auto& [contentType, body, single, attachment, text] : cases) {
        MailFixture mail;
        PutFile(mail.fake.folder / "a.map", "foobar");
        mail.message.ContentType = contentType;
        mail.message.MessageBody = body;
        mail.message.AttachmentFileName = single;
        mail.message.Attachmentname = "shown";
        const auto folder = Utf16ToAnsi(TextFromPath(mail.fake.folder.Path()) + kSeparator);
        if (*attachment != '\0')
            mail.message.AddAttachment(folder + attachment, "");
        EXPECT_EQ(Shortened(mail.message.ComposeText()), Expected(text));
        mail.message.MessageBodyPlain = "given";
        EXPECT_EQ(mail.message.ComposeText().find("7bit\r\n\r\ngiven\r\n") != std::string::npos,
                  mail.message.HasHtmlBody());
    }
}

TEST(Message, WithoutAnyFileInTheCurrentFolderAttachmentsAreAnnounced) {
    MailFixture mail;
    std::filesystem::remove(mail.fake.folder / "any");
    for (const bool logged : {false, true}) {  // with the same boundary
        mail.message.NoEventLog = !logged;
        EXPECT_EQ(Shortened(mail.message.ComposeText()), Expected("{mixed}Hello"));
        EXPECT_EQ(std::filesystem::exists(mail.fake.folder / "LangPort.log"), logged);
    }
    EXPECT_TRUE(mail.fake.ErrorLog().ends_with("\tAttachment () Not Found\r\n"));
}

TEST(Message, SetDefaultEmptiesAllButTheFlags) {
    MailFixture mail;
    mail.message.AddAttachment("a", "b");
    mail.message.AddHeader("X: y");
    mail.message.AuthenticationMode = 1;
    mail.message.NoEventLog = true;
    mail.message.SetDefault();
    EXPECT_EQ(mail.message.ServerPort, 25);
    EXPECT_EQ(mail.message.AuthenticationMode, 0);
    EXPECT_TRUE(mail.message.NoEventLog);
    const std::string text = mail.message.ComposeText();
    EXPECT_EQ(text.rfind("From: <>\r\nTo: \r\nSubject: \r\n", 0), 0U);
    EXPECT_TRUE(text.ends_with(".MAI@" + Utf16ToAnsi(GetLocalComputerName()) + ">\r\n\r\n"));
    mail.fake.registry.strings[u"SMTPLocalDomainName"] = u"configured";
    EXPECT_TRUE(mail.message.ComposeText().ends_with(".MAI@configured>\r\n\r\n"));
}

TEST(Message, WhatIsMissingIsTold) {
    MailFixture mail;
    EXPECT_THROW(mail.message.AddAttachment("  ", "name"), MailError);
    EXPECT_EQ(mail.message.ErrorString, "You must specify a filename for the attachment.");
    mail.message.MailTo = "";
    EXPECT_EQ(mail.message.SendMessage(), 0);
    EXPECT_EQ(mail.message.ErrorString, "No To: address given");
    mail.message.MailFrom = "";
    EXPECT_EQ(mail.message.SendMessage(), 0);
    EXPECT_EQ(mail.message.ErrorString, "No From: address given");
    EXPECT_EQ(mail.eventsProcessed, 0);
}

}  // namespace
}  // namespace cvlang
