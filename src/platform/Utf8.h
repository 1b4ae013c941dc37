// UTF-8 as the outside world uses it: file names on Linux, settings files, standard error.
// Pages have an encoder of their own, because they want surrogate halves encoded one by one.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// UTF-8 of a text; surrogate pairs are joined, a lone half is written as three bytes.
std::string Utf16ToUtf8(std::u16string_view text);

/// UTF-16 of UTF-8 bytes; three bytes that hold a lone half are taken as it (so that every text
/// survives the way there and back), any other malformed byte becomes U+FFFD.
std::u16string Utf8ToUtf16(std::string_view bytes);

}  // namespace cvlang
