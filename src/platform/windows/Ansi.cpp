#include "platform/Ansi.h"

#include <windows.h>

namespace cvlang {

std::u16string AnsiToUtf16(std::string_view bytes) {
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0);
    std::u16string text(static_cast<std::size_t>(length), u'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, reinterpret_cast<wchar_t*>(text.data()),
                        length);
    return text;
}

std::string Utf16ToAnsi(std::u16string_view text) {
    const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
    const int length = static_cast<int>(text.size());
    // Without the flag, "Ł" becomes "L". Code pages such as UTF-8 refuse the flag and do not need
    // it.
    DWORD flags = WC_NO_BEST_FIT_CHARS;
    int size = WideCharToMultiByte(CP_ACP, flags, wide, length, nullptr, 0, nullptr, nullptr);
    if (size == 0) {
        flags = 0;
        size = WideCharToMultiByte(CP_ACP, flags, wide, length, nullptr, 0, nullptr, nullptr);
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, flags, wide, length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::u16string ToUpper(std::u16string_view text) {
    std::u16string upper(text);
    const int length = static_cast<int>(text.size());
    LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE,
                  reinterpret_cast<const wchar_t*>(text.data()), length,
                  reinterpret_cast<wchar_t*>(upper.data()), length, nullptr, nullptr, 0);
    return upper;
}

}  // namespace cvlang
