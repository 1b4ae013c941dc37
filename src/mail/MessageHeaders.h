// The header block of a message.
#pragma once

#include <string>

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

}  // namespace cvlang
