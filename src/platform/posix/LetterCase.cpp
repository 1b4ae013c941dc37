#include "platform/LetterCase.h"

#include <algorithm>
#include <clocale>
#include <cwctype>

namespace cvlang {
namespace {

char16_t ToUpperAscii(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
}

}  // namespace

std::u16string ToUpper(std::u16string_view text) {
    // The C library's own table of letters, which every Debian has whatever locales are installed.
    static const locale_t letters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::u16string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char16_t c) {
        if (c < 0x80 || letters == nullptr)
            return ToUpperAscii(c);
        const auto capital = towupper_l(static_cast<wint_t>(c), letters);
        return capital < 0x10000 ? static_cast<char16_t>(capital) : c;
    });
    return upper;
}

}  // namespace cvlang
