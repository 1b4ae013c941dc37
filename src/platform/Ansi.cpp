#include "platform/Ansi.h"

namespace cvlang {

std::optional<std::string> Utf16ToAnsiExactly(std::u16string_view text) {
    // Fast path: ASCII is the same in all code pages.
    char16_t bits = 0;
    for (const char16_t c : text)
        bits |= c;
    if (bits < 0x80)
        return std::string(text.begin(), text.end());
    const std::string bytes = Utf16ToAnsi(text);
    return AnsiToUtf16(bytes) == text ? std::optional(bytes) : std::nullopt;
}

}  // namespace cvlang
