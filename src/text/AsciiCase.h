// Letter case of ASCII letters only. All other characters and bytes stay unchanged.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

template <typename Character>
constexpr Character LowerAscii(Character c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Character>(c - 'A' + 'a') : c;
}

std::string ToLowerCase(std::string_view text);

/// Whether a text ends with `lowerEnding`, which must be in lower case.
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

/// The position of the first occurrence of `wanted` (in lower case) at or after `from`; npos when
/// there is none.
std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

/// The text with every occurrence of `wanted` replaced.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement);

}  // namespace cvlang
