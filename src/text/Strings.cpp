#include "text/Strings.h"

#include <algorithm>

namespace cvlang {
namespace {

template <typename View>
View Trimmed(View text) {
    constexpr auto kBlank = static_cast<typename View::value_type>(' ');
    text.remove_prefix(std::min(text.find_first_not_of(kBlank), text.size()));
    return text.substr(0, text.find_last_not_of(kBlank) + 1);
}

}  // namespace

std::u16string_view SplitField(std::u16string_view text, std::u16string_view delimiter, int n) {
    if (n < 1)
        return {};
    for (int field = 1;; ++field) {
        // For one character faster than text.find(delimiter).
        const auto found =
            std::search(text.begin(), text.end(), delimiter.begin(), delimiter.end());
        const auto* const end = delimiter.empty() ? text.end() : found;
        if (field == n)
            return {text.begin(), end};
        if (end == text.end())
            return {};
        text = {end + delimiter.size(), text.end()};
    }
}

std::u16string_view TrimBlanks(std::u16string_view text) {
    return Trimmed(text);
}

std::string_view TrimBlanks(std::string_view text) {
    return Trimmed(text);
}

std::u16string_view TrimTrailingBlanks(std::u16string_view text) {
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}

std::u16string_view GetStringBetween(std::u16string_view text, std::u16string_view startMarker,
                                     std::u16string_view endMarker) {
    const std::size_t marker = text.find(startMarker);
    if (marker == std::u16string_view::npos)
        return {};
    const std::size_t start = marker + startMarker.size();
    const std::size_t end = text.find(endMarker, start);
    return end == std::u16string_view::npos ? std::u16string_view()
                                            : text.substr(start, end - start);
}

int CountFields(std::u16string_view text, std::u16string_view delimiter) {
    constexpr int kMost = 50;
    int count = 0;
    std::size_t position = 0;
    do {
        position = position < text.size() ? text.find(delimiter, position) : text.npos;
        ++count;
    } while (position++ != text.npos && count < kMost);
    return count;
}

std::u16string ZeroPad(int width, int length) {
    return std::u16string(static_cast<std::size_t>(width > length ? width - length : 0), u'0');
}

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
