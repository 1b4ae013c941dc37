// Texts: lines, fields, blanks, padding, and the letter case of ASCII letters. Fields count from 1.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace cvlang {

inline constexpr std::u16string_view kTab = u"\t";

// The line end in all files and mails that the program writes, as bytes and as UTF-16.
inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::u16string_view kCrLf16 = u"\r\n";

/// The n-th field of a text split at every occurrence of the delimiter; empty when there is no such
/// field.
std::u16string_view SplitField(std::u16string_view text, std::u16string_view delimiter, int n);

/// The text without the blanks at both ends, or only at its end.
std::u16string_view TrimBlanks(std::u16string_view text);
std::string_view TrimBlanks(std::string_view text);
std::u16string_view TrimTrailingBlanks(std::u16string_view text);

/// The text between the first start marker and the next end marker; empty when either is missing.
std::u16string_view GetStringBetween(std::u16string_view text, std::u16string_view startMarker,
                                     std::u16string_view endMarker);

/// The number of fields. Deliberate: never more than 50.
int CountFields(std::u16string_view text, std::u16string_view delimiter);

/// The zeros that pad a text of the given length to the width; empty when it is long enough.
std::u16string ZeroPad(int width, int length);

/// Iterates over the lines of a text. CR LF, a single LF and a single CR end a line. A last line
/// without a line end counts. A line end at the end of the text does not start another line.
template <typename Character>
class Lines {
  public:
    using View = std::basic_string_view<Character>;

    explicit Lines(View text) : rest_(text) {}

    /// Sets `line` to the next line, without its end. False at the end of the text.
    bool Next(View& line) {
        if (rest_.empty())
            return false;
        // Fast path: one comparison for nearly all characters.
        const auto isEnd = [](Character c) { return c <= '\r' && (c == '\r' || c == '\n'); };
        const auto end = static_cast<std::size_t>(std::find_if(rest_.begin(), rest_.end(), isEnd) -
                                                  rest_.begin());
        line = rest_.substr(0, end);
        const bool pair = rest_.size() > end + 1 && rest_[end] == '\r' && rest_[end + 1] == '\n';
        rest_.remove_prefix(std::min(rest_.size(), end + (pair ? 2 : 1)));
        return true;
    }

  private:
    View rest_;
};

// Letter case of ASCII letters only. All other characters and bytes stay unchanged.

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
