// Characters and the UTF-16 units that they are made of.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The character that a text, which must not be empty, begins with. It is taken from the text; a
/// half of a pair that stands alone counts as one.
char32_t TakeCharacter(std::u16string_view& text);

/// Appends a character, in two units where it takes them.
void AppendCharacter(std::u16string& text, char32_t character);

}  // namespace cvlang
