#include "platform/Surrogates.h"

namespace cvlang {
namespace {

constexpr char32_t kFirstOfTwoUnits = 0x10000;

bool IsHighSurrogate(char16_t c) {
    return c >= 0xD800 && c < 0xDC00;
}

bool IsLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c < 0xE000;
}

}  // namespace

char32_t TakeCharacter(std::u16string_view& text) {
    char32_t character = text[0];
    const bool pair = text.size() > 1 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]);
    if (pair)
        character = kFirstOfTwoUnits + ((character - 0xD800) << 10) + (text[1] - 0xDC00U);
    text.remove_prefix(pair ? 2 : 1);
    return character;
}

void AppendCharacter(std::u16string& text, char32_t character) {
    if (character < kFirstOfTwoUnits) {
        text += static_cast<char16_t>(character);
    } else {
        text += static_cast<char16_t>(0xD800 + ((character - kFirstOfTwoUnits) >> 10));
        text += static_cast<char16_t>(0xDC00 + ((character - kFirstOfTwoUnits) & 0x3FF));
    }
}

}  // namespace cvlang
