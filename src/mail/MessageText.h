// The text of a message: its header block and its body, in the layout that its content calls for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mail/MessageFields.h"

namespace cvlang {

enum class MimeForm { SinglePart, Alternative, Mixed };

/// What a message consists of besides the user's fields.
struct MessageDetails {
    std::string date;
    std::string messageId;      // without its angle brackets
    std::string extraHeaders;   // each with its line end
    MimeForm form;              // of the headers
    std::string boundary;       // of the forms with several parts
    std::string innerBoundary;  // of the two forms of an HTML body beside attachments
    std::vector<Attachment> attachments;
    std::string_view nameParameter;  // how an attachment's content type spells "name"
};

/// The message as it goes over the wire. An attachment that cannot be read has an empty part.
/// Deliberate: a line of a single dot is not changed, although a server takes it for the message's
/// end.
std::string MessageText(const MessageFields& fields, const MessageDetails& details);

}  // namespace cvlang
