// Bytes compared without regard to the case of ASCII letters, as addresses and HTML are.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

std::string ToLowerCase(std::string_view text);

/// Where `wanted`, which is in lower case, occurs for the first time from a position on; npos where
/// it does not.
std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

/// The text with every occurrence of `wanted` replaced.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement);

}  // namespace cvlang
