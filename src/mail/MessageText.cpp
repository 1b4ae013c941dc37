#include "mail/MessageText.h"

#include <filesystem>
#include <initializer_list>

#include "mail/Base64.h"
#include "mail/HeaderValues.h"
#include "platform/FileSystem.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

/// Up to the first ">" behind the start tag, which is the end of the end tag.
std::string WithoutTitle(const std::string& text) {
    constexpr std::string_view kStart = "<title>";
    const std::size_t start = FindIgnoringCase(text, kStart);
    if (start == std::string::npos)
        return text;
    const std::size_t end = text.find('>', start + kStart.size());
    if (end == std::string::npos)
        return text;
    return ReplaceIgnoringCase(text, text.substr(start, end + 1 - start), "");
}

/// Takes out the first such block and every other one that reads the same.
std::string WithoutBlock(const std::string& text, std::string_view startTag,
                         std::string_view endTag) {
    const std::size_t start = FindIgnoringCase(text, startTag);
    if (start == std::string::npos)
        return text;
    const std::size_t end = FindIgnoringCase(text, endTag, start);
    if (end == std::string::npos)
        return text;
    return ReplaceIgnoringCase(text, text.substr(start, end + endTag.size() - start), "");
}

bool BreaksLine(std::string_view tag) {
    const std::string lower = ToLowerCase(tag);
    return lower.starts_with("<td") || lower.starts_with("<div") || lower.starts_with("<li");
}

/// Each tag is taken out of the whole text before the next one is looked for.
std::string WithoutTags(std::string text) {
    for (;;) {
        const std::size_t start = text.find('<');
        const std::size_t end = start == text.npos ? text.npos : text.find('>', start);
        if (end == text.npos)
            return text;
        const std::string tag = text.substr(start, end + 1 - start);
        text = ReplaceIgnoringCase(text, tag, BreaksLine(tag) ? kCrLf : "");
    }
}

void AppendLine(std::string& text, std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts)
        text += part;
    text += kCrLf;
}

std::string Mailbox(std::string_view displayName, std::string_view address) {
    return std::string("\"").append(displayName).append("\" <").append(address).append(">");
}

std::string Sender(const MessageFields& fields) {
    if (!fields.MailFromDisplayName.empty())
        return Mailbox(fields.MailFromDisplayName, fields.MailFrom);
    return "<" + fields.MailFrom + ">";
}

/// Each entry but the first on a line of its own. An address without a counterpart in the names has
/// none.
std::string Recipients(std::string_view addressList, std::string_view nameList) {
    const auto addresses = SplitList(addressList, ';');
    const auto names = SplitList(nameList, ';');
    std::string text;
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        const std::string_view address = TrimBlanks(addresses[i]);
        const std::string_view name = i < names.size() ? names[i] : std::string_view();
        text += i == 0 ? "" : ", \r\n\t";
        text += name.empty() ? std::string(address) : Mailbox(name, address);
    }
    return text;
}

void AppendMimeHeaders(std::string& text, const MessageFields& fields,
                       const MessageDetails& details) {
    if (details.form == MimeForm::SinglePart) {
        if (!fields.ContentType.empty())
            AppendLine(text, {"Content-Type: ", fields.ContentType});
        return;
    }
    const bool mixed = details.form == MimeForm::Mixed;
    AppendLine(text, {"MIME-Version: 1.0"});
    AppendLine(text, {"Content-Type: multipart/", mixed ? "mixed;" : "alternative;"});
    AppendLine(text, {"\tboundary=\"", details.boundary, "\""});
}

void AppendHeaders(std::string& text, const MessageFields& fields, const MessageDetails& details) {
    const auto isGiven = [&details](std::string_view name) {
        return FindIgnoringCase(details.extraHeaders, name) != std::string::npos;
    };
    AppendLine(text, {"From: ", Sender(fields)});
    AppendLine(text, {"To: ", Recipients(fields.MailTo, fields.MailToDisplayName)});
    if (!fields.MailCC.empty())
        AppendLine(text, {"CC: ", Recipients(fields.MailCC, fields.MailCCDisplayName)});
    AppendLine(text, {"Subject: ", fields.Subject});
    AppendLine(text, {"Date: ", details.date});
    if (!isGiven("x-mailer:"))
        AppendLine(text, {"X-Mailer: Corvane"});
    if (!isGiven("message-id:"))
        AppendLine(text, {"Message-ID: <", details.messageId, ">"});
    AppendMimeHeaders(text, fields, details);
    AppendLine(text, {details.extraHeaders});
}

// Deliberate: "type" and "transfer-encoding" in small letters here, in capitals for attachments.
void AppendTextPart(std::string& text, std::string_view subtype, std::string_view body) {
    text.append("Content-type: text/").append(subtype).append("; charset=\"US-ASCII\"\r\n");
    text.append("Content-transfer-encoding: 7bit\r\n\r\n").append(body);
}

void AppendAlternatives(std::string& text, const MessageFields& fields, std::string_view boundary) {
    AppendLine(text, {"--", boundary});
    AppendTextPart(text, "plain",
                   fields.MessageBodyPlain.empty()
                       ? HTMLToText(fields.MessageBody, LineBreaks::Kept)
                       : fields.MessageBodyPlain);
    text += "\r\n\r\n";
    AppendLine(text, {"--", boundary});
    AppendTextPart(text, "html", fields.MessageBody);
    text += "\r\n\r\n";
    AppendLine(text, {"--", boundary, "--"});
}

void AppendAttachment(std::string& text, const Attachment& attachment,
                      std::string_view nameParameter, FileContent& content) {
    text.append("Content-Type: application/octet-stream; ").append(nameParameter);
    text.append("=\"").append(attachment.name).append("\"\r\n");
    text.append("Content-Transfer-Encoding: base64\r\nContent-Disposition: attachment;\r\n");
    text.append("\tfilename=\"").append(attachment.name).append("\"\r\n\r\n");
    [[maybe_unused]] const FileStatus ignored = ReadFile(attachment.file, content);
    Base64::AppendEncoded(text, content.Bytes());
}

void AppendMixedBody(std::string& text, const MessageFields& fields,
                     const MessageDetails& details) {
    AppendLine(text, {"--", details.boundary});
    if (fields.HasHtmlBody()) {
        text.append("Content-type: multipart/alternative; boundary=\"");
        text.append(details.innerBoundary).append("\"\r\n\r\n");
        AppendAlternatives(text, fields, details.innerBoundary);
        text += kCrLf;
    } else {
        AppendTextPart(text, "plain", fields.MessageBody);
    }
    FileContent content;
    for (const Attachment& attachment : details.attachments) {
        text += "\r\n\r\n";
        AppendLine(text, {"--", details.boundary});
        AppendAttachment(text, attachment, details.nameParameter, content);
    }
    text += "\r\n\r\n";
    AppendLine(text, {"--", details.boundary, "--"});
}

/// Roughly how long the message becomes, so that room can be made for it at once.
std::size_t EstimatedSize(const MessageFields& fields, const MessageDetails& details) {
    constexpr std::size_t kPartHeaders = 400;
    std::size_t size = details.extraHeaders.size() + 2 * fields.MessageBody.size() +
                       fields.MessageBodyPlain.size() + 3 * kPartHeaders;
    for (const Attachment& attachment : details.attachments) {
        std::error_code error;
        const auto fileSize = std::filesystem::file_size(FindExisting(attachment.file), error);
        size += kPartHeaders + (error ? 0 : Base64::EncodedSize(fileSize));
    }
    return size;
}

}  // namespace

std::string MessageText(const MessageFields& fields, const MessageDetails& details) {
    std::string text;
    text.reserve(EstimatedSize(fields, details));
    AppendHeaders(text, fields, details);
    if (!details.attachments.empty())
        AppendMixedBody(text, fields, details);
    else if (fields.HasHtmlBody())
        AppendAlternatives(text, fields, details.boundary);
    else
        text += fields.MessageBody;
    return text;
}

std::string HTMLToText(std::string_view html, LineBreaks lineBreaks) {
    std::string text = ReplaceIgnoringCase(html, kCrLf, "");
    text = WithoutTitle(text);
    text = WithoutBlock(text, "<style", "</style>");
    text = WithoutBlock(text, "<script", "</script>");
    text = ReplaceIgnoringCase(text, "<br>", kCrLf);
    text = ReplaceIgnoringCase(text, "&nbsp;", " ");
    text = WithoutTags(text);
    return lineBreaks == LineBreaks::Kept ? text : ReplaceIgnoringCase(text, kCrLf, "<BR>");
}

}  // namespace cvlang
