// Windows-1252: Latin-1 except for the 32 codes from 0x80.
#include "platform/Ansi.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cwctype>

namespace cvlang {
namespace {

constexpr std::size_t kFirstSpecial = 0x80;

// Unassigned codes keep their number, as on Windows.
constexpr std::array<char16_t, 32> kSpecial = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsSpecial(std::size_t code) {
    return code >= kFirstSpecial && code < kFirstSpecial + kSpecial.size();
}

char ToByte(char16_t c) {
    if (c < 0x100 && !IsSpecial(c))
        return static_cast<char>(c);
    const auto found = std::find(kSpecial.begin(), kSpecial.end(), c);
    return found == kSpecial.end() ? '?' : static_cast<char>(0x80 + (found - kSpecial.begin()));
}

}  // namespace

std::u16string AnsiToUtf16(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += IsSpecial(code) ? kSpecial[code - kFirstSpecial] : static_cast<char16_t>(code);
    }
    return text;
}

std::string Utf16ToAnsi(std::u16string_view text) {
    std::string bytes(text.size(), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(), ToByte);
    return bytes;
}

std::u16string ToUpper(std::u16string_view text) {
    // C.UTF-8 has the table of letters and is in every Debian.
    static const locale_t letters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::u16string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char16_t c) {
        // Fast path: ASCII needs no table.
        if (c < 0x80)
            return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
        const auto capital = letters == nullptr ? towupper(c) : towupper_l(c, letters);
        return capital < 0x10000 ? static_cast<char16_t>(capital) : c;
    });
    return upper;
}

}  // namespace cvlang
