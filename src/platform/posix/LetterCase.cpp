#include "platform/LetterCase.h"

#include <algorithm>
#include <clocale>
#include <cwctype>

namespace cvlang {

std::u16string ToUpper(std::u16string_view text) {
    // C.UTF-8 has the table of letters and is in every Debian.
    static const locale_t letters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::u16string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char16_t c) {
        const auto letter = static_cast<wint_t>(c);
        const auto capital = letters == nullptr ? towupper(letter) : towupper_l(letter, letters);
        return capital < 0x10000 ? static_cast<char16_t>(capital) : c;
    });
    return upper;
}

}  // namespace cvlang
