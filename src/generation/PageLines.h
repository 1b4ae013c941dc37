// The lines of a page.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "generation/PageOutline.h"
#include "generation/PageText.h"

namespace cvlang {

inline constexpr std::string_view kPageLineEnd = "\r\n";

/// Makes `pairs` the page with CR LF wherever its outline notes one of them alone.
void EndLinesByPairs(std::string_view page, const PageOutline& outline, PageText& pairs);

/// Where the line of this position begins, on a page whose lines end by CR LF.
inline std::size_t LineStart(std::string_view page, std::size_t position) {
    // Without a line's end before it, npos + 1 is the page's start.
    return page.rfind('\n', position) + 1;
}

/// Where the line of this position ends.
inline std::size_t LineEnd(std::string_view page, std::size_t position) {
    return std::min(page.find('\r', position), page.size());
}

}  // namespace cvlang
