#include "mail/Message.h"

#include <utility>

#include "mail/Base64.h"
#include "mail/HeaderValues.h"
#include "mail/MailError.h"
#include "mail/MessageText.h"
#include "mail/SmtpDialogue.h"
#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

/// What looking up an empty file name comes to.
bool CurrentFolderHoldsAFile() {
    return !ListFolder(".").files.empty();
}

std::filesystem::path PathFromAnsi(std::string_view text) {
    return PathFromText(AnsiToUtf16(text));
}

std::string NameInPath(const std::string& file) {
    constexpr char kPathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);
    return file.substr(file.rfind(kPathSeparator) + 1);
}

}  // namespace

Message::Message(const Configuration& config, const Logs& logs, MailEnvironment environment)
    : config_(config), logs_(logs), environment_(std::move(environment)) {}

void Message::AddHeader(std::string_view sHeader) {
    if (!sHeader.empty())
        extraHeaders_.append(sHeader).append(kCrLf);
}

void Message::AddAttachment(const std::string& Filename, const std::string& name) {
    if (TrimBlanks(Filename).empty()) {
        ErrorString = "You must specify a filename for the attachment.";
        throw MailError(MailErrorNumber::Incomplete, "AddAttachment", ErrorString);
    }
    AddFile(PathFromAnsi(Filename), name.empty() ? NameInPath(Filename) : name);
}

void Message::SetDefault() {
    MessageFields empty;
    empty.NoEventLog = NoEventLog;
    empty.MIMEEncode = MIMEEncode;
    empty.HTML = HTML;
    empty.ServerPort = kSmtpPort;
    static_cast<MessageFields&>(*this) = std::move(empty);
    ClearHeaders();
    ClearAttachments();
}

std::string Message::EncodeByteArr(std::string_view bytInput) {
    return Base64::EncodeByteArr(bytInput);
}

int Message::SendMessage() {
    try {
        return Send() ? 1 : 0;
    } catch (const MailError& error) {
        ErrorString = error.Description();
        if (error.Number() != MailErrorNumber::Receive)  // which the log has with its command
            LogActivity(ErrorString);
        return 0;
    }
}

bool Message::Send() {
    if (MailFrom.empty())
        throw MailError(MailErrorNumber::Incomplete, "SendMessage", "No From: address given");
    if (MailTo.empty())
        throw MailError(MailErrorNumber::Incomplete, "SendMessage", "No To: address given");
    std::string text = ComposeText();
    return DeliverMessage(
        *this, GetHeloDomainName(), environment_,
        [this](std::string_view line) { LogActivity(line); },
        MergedAddresses({MailTo, MailCC, MailBCC}), std::move(text));
}

std::string Message::ComposeText() {
    const MimeForm form = FormOfHeaders();
    if (form != MimeForm::SinglePart && boundary_.empty())
        boundary_ = NewMIMEBoundary(environment_.newGuid);
    MessageDetails details{.date = FormatMailDate(environment_.clock(), environment_.timeZone()),
                           .extraHeaders = extraHeaders_,
                           .form = form,
                           .boundary = boundary_,
                           .attachments = attachments_};
    if (attachments_.empty() && !AttachmentFileName.empty()) {
        details.attachments = {{PathFromAnsi(AttachmentFileName), Attachmentname}};
        details.nameParameter = "Name";  // deliberate: a capital
    }
    if (!details.attachments.empty() && HasHtmlBody())
        details.innerBoundary = NewMIMEBoundary(environment_.newGuid);
    details.messageId = NewMessageFileName(environment_.newGuid) + "@" + GetHeloDomainName();
    return MessageText(*this, details);
}

/// Deliberate: without attachments an empty file name is looked up. Where that finds nothing, the
/// headers announce attachments all the same.
MimeForm Message::FormOfHeaders() const {
    if (!attachments_.empty() || !AttachmentFileName.empty())
        return MimeForm::Mixed;
    if (!CurrentFolderHoldsAFile()) {
        LogActivity("Attachment (" + AttachmentFileName + ") Not Found");
        return MimeForm::Mixed;
    }
    return HasHtmlBody() ? MimeForm::Alternative : MimeForm::SinglePart;
}

std::string Message::GetHeloDomainName() const {
    if (!LocalDomainName.empty())
        return LocalDomainName;
    const std::u16string configured = config_.GetLocalDomainName();
    return Utf16ToAnsi(configured.empty() ? GetLocalComputerName() : configured);
}

void Message::LogActivity(std::string_view line) const {
    if (NoEventLog)
        return;
    // A log that cannot be written must not keep mail from going out.
    [[maybe_unused]] const std::error_code ignored = logs_.LogTranslationEvent(AnsiToUtf16(line));
}

}  // namespace cvlang
