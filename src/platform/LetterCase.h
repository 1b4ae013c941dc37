// Letter case without regard to the user's locale.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

/// The text in upper case, letter by letter, so its length is the same (é becomes É, ß stays).
std::u16string ToUpper(std::u16string_view text);

}  // namespace cvlang
