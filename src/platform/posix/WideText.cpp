#include "platform/WideText.h"

#include "text/Unicode.h"

namespace cvlang {

std::wstring WideFromUtf16(std::u16string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    while (!text.empty())
        wide += static_cast<wchar_t>(TakeCharacter(text));
    return wide;
}

std::u16string Utf16FromWide(std::wstring_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t c : text)
        AppendCharacter(units, static_cast<char32_t>(c));
    return units;
}

}  // namespace cvlang
