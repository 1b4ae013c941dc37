// Letter case of ASCII letters alone; all other characters and bytes stay as they are.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

template <typename Character>
constexpr Character LowerAscii(Character c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Character>(c - 'A' + 'a') : c;
}

std::string ToLowerCase(std::string_view text);

/// Whether a text ends with `lowerEnding`, which is in lower case.
template <typename Text>
bool EndsWithIgnoringCase(const Text& text, std::string_view lowerEnding) {
    if (text.size() < lowerEnding.size())
        return false;
    auto c = text.end() - static_cast<std::ptrdiff_t>(lowerEnding.size());
    for (const char wanted : lowerEnding) {
        if (LowerAscii(*c++) != wanted)
            return false;
    }
    return true;
}

/// Position of the first occurrence of `wanted`, which is in lower case, from a position on; npos
/// when there is none.
std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

/// The text with every occurrence of `wanted` replaced.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement);

}  // namespace cvlang
