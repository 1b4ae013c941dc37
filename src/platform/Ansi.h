// Text in the system's ANSI code page: Windows' own there, Windows-1252 on Linux.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cvlang {

/// The UTF-16 text of ANSI bytes. Bytes that the code page leaves unassigned pass through by
/// number.
std::u16string AnsiToUtf16(std::string_view bytes);

/// The ANSI bytes of a text; a character that the code page lacks becomes "?".
std::string Utf16ToAnsi(std::u16string_view text);

/// The ANSI bytes of a text, or nothing when the code page lacks one of its characters.
std::optional<std::string> Utf16ToAnsiExactly(std::u16string_view text);

}  // namespace cvlang
