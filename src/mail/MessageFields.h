// What the user of a message fills in. Texts are bytes of the ANSI code page.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace cvlang {

inline constexpr std::string_view kMailLineEnd = "\r\n";
inline constexpr int kSmtpPort = 25;
/// The content type that makes a message's body HTML with a plain alternative.
inline constexpr std::string_view kHtmlContentType = "text/html;";

struct MessageFields {
    // Several recipients are separated by ";"; a display name belongs to the address at the same
    // place of its list.
    std::string MailToDisplayName;
    std::string MailTo;
    std::string MailCCDisplayName;
    std::string MailCC;
    std::string MailBCC;
    std::string MailFromDisplayName;
    std::string MailFrom;

    std::string Subject;
    std::string MessageBody;
    std::string MessageBodyPlain;  // empty: made from an HTML body
    std::string ContentType;
    // One attachment; used only while the list of attachments is empty.
    std::string AttachmentFileName;
    std::string Attachmentname;

    std::string Server;          // empty: this computer
    int ServerPort = 0;          // 0: the usual one, 25
    int AuthenticationMode = 0;  // 1: AUTH LOGIN
    std::string Username;
    std::string Password;
    std::string LocalDomainName;

    bool NoEventLog = false;  // keeps the activity log as it is
    bool MIMEEncode = false;  // without effect, as is the next
    bool HTML = false;

    /// The last error or the last report of a delivery.
    std::string ErrorString;
    /// The recipients that the server refused, separated by ",".
    std::string FailedRecipients;

    bool HasHtmlBody() const { return ContentType == kHtmlContentType; }
};

struct Attachment {
    std::filesystem::path file;
    std::string name;  // shown to the recipient
};

}  // namespace cvlang
