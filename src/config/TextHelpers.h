// Small text helpers that are used across the program. Positions and fields count from 1.
#pragma once

#include <string>
#include <string_view>

#include "platform/SystemInformation.h"

namespace cvlang {

inline constexpr std::u16string_view kTab = u"\t";

/// The n-th field of a text split at every occurrence of the delimiter; empty when there is no such
/// field.
std::u16string_view SplitField(std::u16string_view text, std::u16string_view delimiter, int n);

/// The text without the blanks at both ends, or at its end alone.
std::u16string_view TrimBlanks(std::u16string_view text);
std::u16string_view TrimTrailingBlanks(std::u16string_view text);

/// The text between the first start marker and the first end marker behind it; empty when either is
/// missing.
std::u16string_view GetStringBetween(std::u16string_view text, std::u16string_view startMarker,
                                     std::u16string_view endMarker);

/// The number of fields, 50 at most: callers size their loops by it and rely on the bound.
int CountFields(std::u16string_view text, std::u16string_view delimiter);

/// As many "0" as a text of the given length lacks to the width; none when it is long enough.
std::u16string ZeroPad(int width, int length);

/// A fresh GUID in capitals, without separators, or "00000000" when the system makes none. 24 to 32
/// characters: of the last eight bytes those from 0A to 0F are written with one digit, which other
/// programs' names rely on.
std::u16string CreateGuidString(const GuidSource& newGuid = NewGuid);

/// The computer's name; empty when the system does not tell.
std::u16string GetLocalComputerName();

}  // namespace cvlang
