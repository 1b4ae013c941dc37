// What placeholders look like on a page.
#pragma once

#include <cstddef>
#include <string_view>

namespace cvlang {

/// What every placeholder begins with. Lines without it are never looked at.
inline constexpr std::string_view kPlaceholderPrefix = "[CV_TXT-";

bool IsPlaceholderAt(std::string_view text, std::size_t position);
bool HoldsPlaceholder(std::string_view text);

}  // namespace cvlang
