#include "text/AsciiCase.h"

#include <algorithm>

namespace cvlang {

std::string ToLowerCase(std::string_view text) {
    std::string lower(text.size(), '\0');
    std::transform(text.begin(), text.end(), lower.begin(), LowerAscii<char>);
    return lower;
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from) {
    const auto found =
        std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), wanted.begin(),
                    wanted.end(), [](char a, char b) { return LowerAscii(a) == b; });
    return found == text.end() ? std::string_view::npos
                               : static_cast<std::size_t>(found - text.begin());
}

std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement) {
    const std::string lower = ToLowerCase(wanted);
    std::string result;
    std::size_t copied = 0;
    std::size_t found = FindIgnoringCase(text, lower);
    while (found != std::string_view::npos) {
        result.append(text.substr(copied, found - copied)).append(replacement);
        copied = found + wanted.size();
        found = FindIgnoringCase(text, lower, copied);
    }
    return result.append(text.substr(copied));
}

}  // namespace cvlang
