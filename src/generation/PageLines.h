// The lines of a page.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

inline constexpr std::string_view kPageLineEnd = "\r\n";

/// The page with each line, the last one too, ended by CR LF.
std::string WithPairs(std::string_view page);

}  // namespace cvlang
