// UTF-16 code units, code points, and UTF-8 for file names on Linux, settings files and standard
// error. Pages have their own UTF-8 encoder, which encodes each surrogate by itself.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// Removes the first code point from a text, which must not be empty, and returns it. A lone
/// surrogate counts as a code point.
char32_t TakeCharacter(std::u16string_view& text);

/// Appends a code point, as a surrogate pair where it needs one.
void AppendCharacter(std::u16string& text, char32_t character);

/// The text as UTF-8. A lone surrogate is written as three bytes.
std::string Utf16ToUtf8(std::u16string_view text);

/// The bytes as UTF-16. Three bytes that encode a lone surrogate become this surrogate, so every
/// text converts back. Any other malformed byte becomes U+FFFD.
std::u16string Utf8ToUtf16(std::string_view bytes);

}  // namespace cvlang
