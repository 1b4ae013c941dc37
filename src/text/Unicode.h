// Unicode text: UTF-16 code units, characters, and UTF-8 as the outside world uses it (file names
// on Linux, settings files, standard error). Pages have an encoder of their own, which encodes
// surrogate halves one by one.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The character that a text, which must not be empty, begins with. It is taken from the text; a
/// half of a pair that stands alone counts as one.
char32_t TakeCharacter(std::u16string_view& text);

/// Appends a character, in two units where it takes them.
void AppendCharacter(std::u16string& text, char32_t character);

/// UTF-8 of a text; surrogate pairs are joined, a lone half is written as three bytes.
std::string Utf16ToUtf8(std::u16string_view text);

/// UTF-16 of UTF-8 bytes; three bytes that hold a lone half are taken as it (so that every text
/// survives the way there and back), any other malformed byte becomes U+FFFD.
std::u16string Utf8ToUtf16(std::string_view bytes);

}  // namespace cvlang
