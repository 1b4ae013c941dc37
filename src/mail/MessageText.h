// The fields of a message that its user fills in, and its text: header block and body, in the
// layout that its content calls for.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SystemInformation.h"

namespace cvlang {

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

/// What sending mail touches outside the program; tests bring their own.
struct MailEnvironment {
    Clock clock = SystemClock;
    GuidSource newGuid = NewGuid;
    TimeZoneSource timeZone = SystemTimeZone;
    /// Called once before connecting, which blocks the program, so that windows can repaint.
    std::function<void()> processPendingEvents = [] {};
    /// Called before each command, so that windows can show that the conversation goes on. Never
    /// amid the wait for a reply, which must not miss the end of its minute.
    std::function<void()> beforeCommand = [] {};
};

enum class MimeForm { SinglePart, Alternative, Mixed };

/// What a message consists of besides the user's fields.
struct MessageDetails {
    std::string date;
    std::string messageId{};      // without its angle brackets
    std::string extraHeaders;     // each with its line end
    MimeForm form;                // of the headers
    std::string boundary;         // of the forms with several parts
    std::string innerBoundary{};  // of the two forms of an HTML body beside attachments
    std::vector<Attachment> attachments;
    std::string_view nameParameter = "name";  // how an attachment's content type spells it
};

/// The message as it goes over the wire. An attachment that cannot be read has an empty part.
/// Deliberate: a line of a single dot is not changed, although a server takes it for the message's
/// end.
std::string MessageText(const MessageFields& fields, const MessageDetails& details);

enum class LineBreaks { Kept, AsMarkup };

/// A plain-text rendering of HTML, for readers of mail that show none. Simple on purpose: only the
/// first title, style and script block is taken out, and entities other than "&nbsp;" stay.
std::string HTMLToText(std::string_view html, LineBreaks lineBreaks);

}  // namespace cvlang
