#include "widgets/Text.h"

#include "text/Unicode.h"

namespace cvlang {

// Not through the toolkit's own conversions, which drop or refuse texts with a lone half. Wide
// characters are UTF-16 units on Windows and whole characters on Linux.
wxString ToWx(std::u16string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    if constexpr (sizeof(wchar_t) == sizeof(char16_t)) {
        wide.assign(text.begin(), text.end());
    } else {
        while (!text.empty())
            wide += static_cast<wchar_t>(TakeCharacter(text));
    }
    return wxString(wide);
}

std::u16string FromWx(const wxString& text) {
    std::u16string units;
    units.reserve(text.length());
    for (const wchar_t c : text.ToStdWstring())
        AppendCharacter(units, static_cast<char32_t>(c));
    return units;
}

std::u16string_view Shortened(std::u16string_view text) {
    constexpr std::size_t kDrawable = 2000;
    return text.substr(0, kDrawable);
}

}  // namespace cvlang
