// Text in the ANSI code page (the system's on Windows, Windows-1252 on Linux), and letter case
// without regard to the user's locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cvlang {

/// The UTF-16 text of ANSI bytes. An unassigned byte becomes the code unit of its number.
std::u16string AnsiToUtf16(std::string_view bytes);

/// The ANSI bytes of a text; a character that the code page lacks becomes "?".
std::string Utf16ToAnsi(std::u16string_view text);

/// The ANSI bytes of a text, or nothing when the code page lacks one of its characters.
inline std::optional<std::string> Utf16ToAnsiExactly(std::u16string_view text) {
    // Fast path: ASCII is the same in all code pages.
    char16_t bits = 0;
    for (const char16_t c : text)
        bits |= c;
    if (bits < 0x80)
        return std::string(text.begin(), text.end());
    const std::string bytes = Utf16ToAnsi(text);
    return AnsiToUtf16(bytes) == text ? std::optional(bytes) : std::nullopt;
}

/// The text in upper case, letter by letter, so its length is the same (é becomes É, ß stays).
std::u16string ToUpper(std::u16string_view text);

}  // namespace cvlang
