#include "mail/MessageText.h"

#include <filesystem>
#include <utility>

#include "mail/Base64.h"
#include "mail/HeaderValues.h"
#include "mail/HtmlToText.h"
#include "platform/FileSystem.h"
#include "platform/Paths.h"
#include "text/AsciiCase.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

class HeaderWriter {
  public:
    HeaderWriter& Line(std::string_view name, std::string_view value) {
        text_.append(name).append(value).append(kCrLf);
        return *this;
    }
    std::string Text() && { return std::move(text_); }

  private:
    std::string text_;
};

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

void AppendMimeHeaders(HeaderWriter& writer, const MessageFields& fields,
                       const HeaderDetails& details) {
    if (details.form == MimeForm::SinglePart) {
        if (!fields.ContentType.empty())
            writer.Line("Content-Type: ", fields.ContentType);
        return;
    }
    const bool mixed = details.form == MimeForm::Mixed;
    writer.Line("MIME-Version: ", "1.0");
    writer.Line("Content-Type: ", mixed ? "multipart/mixed;" : "multipart/alternative;");
    writer.Line("\tboundary=\"", details.boundary + "\"");
}

void AppendDelimiter(std::string& text, std::string_view boundary) {
    text.append("--").append(boundary).append(kCrLf);
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
        text += kCrLf;
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

std::string HeaderBlock(const MessageFields& fields, const HeaderDetails& details) {
    const auto isGiven = [&details](std::string_view name) {
        return FindIgnoringCase(details.extraHeaders, name) != std::string::npos;
    };
    HeaderWriter writer;
    writer.Line("From: ", Sender(fields));
    writer.Line("To: ", Recipients(fields.MailTo, fields.MailToDisplayName));
    if (!fields.MailCC.empty())
        writer.Line("CC: ", Recipients(fields.MailCC, fields.MailCCDisplayName));
    writer.Line("Subject: ", fields.Subject);
    writer.Line("Date: ", details.date);
    if (!isGiven("x-mailer:"))
        writer.Line("X-Mailer: ", "Corvane");
    if (!isGiven("message-id:"))
        writer.Line("Message-ID: <", details.messageId + ">");
    AppendMimeHeaders(writer, fields, details);
    writer.Line(details.extraHeaders, "");
    return std::move(writer).Text();
}

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
