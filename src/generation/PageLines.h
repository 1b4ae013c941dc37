// The lines of a page.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

inline constexpr std::string_view kPageLineEnd = "\r\n";

/// The page's lines, joined by CR LF, without the last line's end. A page that has no other line
/// ends is not copied; otherwise the result lies in `scratch`.
std::string_view JoinLines(std::string_view page, std::string& scratch);

}  // namespace cvlang
