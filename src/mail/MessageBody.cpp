#include "mail/MessageBody.h"

#include <filesystem>

#include "mail/Base64.h"
#include "mail/HtmlToText.h"
#include "platform/FileSystem.h"
#include "platform/Paths.h"

namespace cvlang {
namespace {

void AppendDelimiter(std::string& text, std::string_view boundary) {
    text.append("--").append(boundary).append("\r\n");
}

void AppendLastDelimiter(std::string& text, std::string_view boundary) {
    text.append("--").append(boundary).append("--\r\n");
}

// These two spell "type" and "transfer-encoding" in small letters where the attachments have
// capitals. Meant: the mail server's filters tell this program's messages by it.
void AppendTextPart(std::string& text, std::string_view subtype, std::string_view body) {
    text.append("Content-type: text/").append(subtype).append("; charset=\"US-ASCII\"\r\n");
    text.append("Content-transfer-encoding: 7bit\r\n\r\n").append(body);
}

void AppendAlternatives(std::string& text, const MessageFields& fields, std::string_view boundary) {
    AppendDelimiter(text, boundary);
    AppendTextPart(text, "plain",
                   fields.MessageBodyPlain.empty()
                       ? HTMLToText(fields.MessageBody, LineBreaks::Kept)
                       : fields.MessageBodyPlain);
    text += "\r\n\r\n";
    AppendDelimiter(text, boundary);
    AppendTextPart(text, "html", fields.MessageBody);
    text += "\r\n\r\n";
    AppendLastDelimiter(text, boundary);
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

void AppendMixedBody(std::string& text, const MessageFields& fields, const BodyDetails& details) {
    AppendDelimiter(text, details.boundary);
    if (fields.HasHtmlBody()) {
        text.append("Content-type: multipart/alternative; boundary=\"");
        text.append(details.innerBoundary).append("\"\r\n\r\n");
        AppendAlternatives(text, fields, details.innerBoundary);
        text += kMailLineEnd;
    } else {
        AppendTextPart(text, "plain", fields.MessageBody);
    }
    FileContent content;
    for (const Attachment& attachment : details.attachments) {
        text += "\r\n\r\n";
        AppendDelimiter(text, details.boundary);
        AppendAttachment(text, attachment, details.nameParameter, content);
    }
    text += "\r\n\r\n";
    AppendLastDelimiter(text, details.boundary);
}

}  // namespace

std::size_t EstimatedBodySize(const MessageFields& fields, const BodyDetails& details) {
    constexpr std::size_t kPartHeaders = 400;
    std::size_t size =
        2 * fields.MessageBody.size() + fields.MessageBodyPlain.size() + 3 * kPartHeaders;
    for (const Attachment& attachment : details.attachments) {
        std::error_code error;
        const auto fileSize = std::filesystem::file_size(FindExisting(attachment.file), error);
        size += kPartHeaders + (error ? 0 : Base64::EncodedSize(fileSize));
    }
    return size;
}

void AppendBody(std::string& text, const MessageFields& fields, const BodyDetails& details) {
    if (!details.attachments.empty())
        AppendMixedBody(text, fields, details);
    else if (fields.HasHtmlBody())
        AppendAlternatives(text, fields, details.boundary);
    else
        text += fields.MessageBody;
}

}  // namespace cvlang
