#include "platform/LetterCase.h"

#include <windows.h>

namespace cvlang {

std::u16string ToUpper(std::u16string_view text) {
    std::u16string upper(text);
    const int length = static_cast<int>(text.size());
    LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE,
                  reinterpret_cast<const wchar_t*>(text.data()), length,
                  reinterpret_cast<wchar_t*>(upper.data()), length, nullptr, nullptr, 0);
    return upper;
}

}  // namespace cvlang
