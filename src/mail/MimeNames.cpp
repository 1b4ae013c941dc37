#include "mail/MimeNames.h"

#include <array>
#include <cstdio>

#include "config/Configuration.h"
#include "platform/Ansi.h"

namespace cvlang {

std::string NewMIMEBoundary(const GuidSource& newGuid) {
    const Guid guid = newGuid().value_or(Guid{0x01C0D501, 0x82E0, 0x5F40, {}});
    std::array<char, 24> fields{};
    std::snprintf(fields.data(), fields.size(), "%08X.%04X%04X", guid.first,
                  static_cast<unsigned>(guid.second), static_cast<unsigned>(guid.third));
    return std::string("--=_NextPart_000_000B_") + fields.data();
}

std::string NewMessageFileName(const GuidSource& newGuid) {
    return Utf16ToAnsi(CreateGuidString(newGuid)) + ".MAI";
}

}  // namespace cvlang
