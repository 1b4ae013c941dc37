#include "platform/Ansi.h"

#include <algorithm>

namespace cvlang {

std::optional<std::string> Utf16ToAnsiExactly(std::u16string_view text) {
    // Code pages agree on ASCII, and most tokens are nothing else.
    const bool ascii = std::all_of(text.begin(), text.end(), [](char16_t c) { return c < 0x80; });
    if (ascii)
        return std::string(text.begin(), text.end());
    std::string bytes = Utf16ToAnsi(text);
    if (AnsiToUtf16(bytes) != text)
        return std::nullopt;
    return bytes;
}

}  // namespace cvlang
