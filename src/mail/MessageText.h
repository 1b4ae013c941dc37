// The text of a message: its header block and its body, in the layout that its content calls for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mail/MessageFields.h"

namespace cvlang {

enum class MimeForm { SinglePart, Alternative, Mixed };

/// What a header block holds besides the user's fields.
struct HeaderDetails {
    std::string date;
    std::string messageId;     // without its angle brackets
    std::string extraHeaders;  // each with its line end
    MimeForm form;
    std::string boundary;  // of the forms with several parts
};

/// The block with the empty line that ends it.
std::string HeaderBlock(const MessageFields& fields, const HeaderDetails& details);

struct BodyDetails {
    std::vector<Attachment> attachments;
    std::string_view nameParameter;  // how an attachment's content type spells "name"
    std::string boundary;
    std::string innerBoundary;  // of the two forms of an HTML body beside attachments
};

/// Roughly how long the body becomes, so that room can be made for it at once.
std::size_t EstimatedBodySize(const MessageFields& fields, const BodyDetails& details);

/// An attachment that cannot be read has an empty part. A line that holds nothing but a dot is not
/// changed, although a server takes it for the message's end: what is composed here is what goes
/// out, byte by byte.
void AppendBody(std::string& text, const MessageFields& fields, const BodyDetails& details);

}  // namespace cvlang
