#include "platform/WideText.h"

namespace cvlang {
namespace {

constexpr char32_t kFirstBeyond = 0x10000;  // the first character that needs a pair

bool IsHighHalf(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}

bool IsLowHalf(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

}  // namespace

std::wstring WideFromUtf16(std::u16string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        if (IsHighHalf(text[i]) && i + 1 < text.size() && IsLowHalf(text[i + 1]))
            character = kFirstBeyond + ((character - 0xD800) << 10) + (text[++i] - 0xDC00U);
        wide += static_cast<wchar_t>(character);
    }
    return wide;
}

std::u16string Utf16FromWide(std::wstring_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t c : text) {
        const auto character = static_cast<char32_t>(c);
        if (character < kFirstBeyond) {
            units += static_cast<char16_t>(character);
        } else {
            units += static_cast<char16_t>(0xD800 + ((character - kFirstBeyond) >> 10));
            units += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        }
    }
    return units;
}

}  // namespace cvlang
