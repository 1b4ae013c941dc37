#include "text/Unicode.h"

namespace cvlang {
namespace {

constexpr char32_t kFirstOfTwoUnits = 0x10000;

bool IsHighSurrogate(char16_t c) {
    return c >= 0xD800 && c < 0xDC00;
}

bool IsLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c < 0xE000;
}

constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& bytes, char32_t c) {
    const auto tail = [c](int shift) { return static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        bytes += static_cast<char>(c);
    } else if (c < 0x800) {
        bytes += {static_cast<char>(0xC0 | (c >> 6)), tail(0)};
    } else if (c < 0x10000) {
        bytes += {static_cast<char>(0xE0 | (c >> 12)), tail(6), tail(0)};
    } else {
        bytes += {static_cast<char>(0xF0 | (c >> 18)), tail(12), tail(6), tail(0)};
    }
}

/// The length of the sequence that starts with `lead`; 0 when no sequence can.
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

struct Decoded {
    char32_t character = kReplacement;
    std::size_t length = 1;
};

Decoded DecodeFirst(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    const std::size_t length = SequenceLength(lead);
    if (length == 1)
        return {lead, 1};
    if (length == 0 || length > bytes.size())
        return {};
    char32_t c = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0) != 0x80)
            return {};
        c = (c << 6) | (next & 0x3FU);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kSmallest[length] || c > 0x10FFFF)
        return {};
    return {c, length};
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

std::string Utf16ToUtf8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty())
        AppendUtf8(bytes, TakeCharacter(text));
    return bytes;
}

std::u16string Utf8ToUtf16(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Decoded next = DecodeFirst(bytes);
        AppendCharacter(text, next.character);
        bytes.remove_prefix(next.length);
    }
    return text;
}

}  // namespace cvlang
