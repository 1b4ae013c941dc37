#include "mail/MessageHeaders.h"

#include <utility>

#include "mail/AddressList.h"
#include "text/AsciiCase.h"

namespace cvlang {
namespace {

class HeaderWriter {
  public:
    HeaderWriter& Line(std::string_view name, std::string_view value) {
        text_.append(name).append(value).append(kMailLineEnd);
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
        const std::string_view address = Trimmed(addresses[i]);
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

}  // namespace cvlang
