#include "platform/WideText.h"

namespace cvlang {

std::wstring WideFromUtf16(std::u16string_view text) {
    return {text.begin(), text.end()};
}

std::u16string Utf16FromWide(std::wstring_view text) {
    return {text.begin(), text.end()};
}

}  // namespace cvlang
