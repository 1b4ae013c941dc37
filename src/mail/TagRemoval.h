// Taking the tags out of HTML.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// What is left when, again and again, the first "<" with a ">" behind it is found and the text
/// from one to the other is replaced wherever it occurs: by a line break where it begins a table
/// cell, a division or a list item, otherwise by nothing. A "<" inside a tag does not begin another
/// one, unless that one was found before it.
std::string RemoveTags(std::string_view html);

}  // namespace cvlang
