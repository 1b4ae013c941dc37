// How a value is written into a page. Pages are bytes: their own text is carried through as it
// stands, values are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generation/PageText.h"

namespace cvlang {

inline constexpr std::string_view kUtf8ByteOrderMark = "\xEF\xBB\xBF";

/// Encodes a text as UTF-8 into the array and returns the number of bytes. Each 16-bit code stands
/// for itself, surrogate halves too: the web applications read pages back that way. An empty text
/// leaves the array untouched.
std::size_t EncodeUTF8(std::u16string_view sText, std::vector<std::uint8_t>& bytOutput);

/// The bytes as text of one character each, ready to be inserted into a page; it lives as long as
/// the bytes.
std::string_view BytesToString(const std::vector<std::uint8_t>& bytInput);

/// The text with a backslash before every "'" and every quotation mark; backslashes in the text
/// stay as they are.
std::string EscapeForScript(std::string_view sText);
/// The same at the end of a page.
void AppendEscapedForScript(std::string_view text, PageText& page);

}  // namespace cvlang
