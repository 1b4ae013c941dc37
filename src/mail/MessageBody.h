// The body of a message, in the layout that its content calls for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mail/MessageFields.h"

namespace cvlang {

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
