// Fields, blanks and padding of UTF-16 texts. Fields count from 1.
#pragma once

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

}  // namespace cvlang
