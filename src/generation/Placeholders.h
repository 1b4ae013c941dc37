// What can be a placeholder, or another token, in a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "generation/PageOutline.h"

namespace cvlang {

class IndexedToken;

/// What every placeholder begins with. Lines without it are never looked at.
inline constexpr std::string_view kPlaceholderPrefix = "[CV_TXT-";

bool IsPlaceholderAt(std::string_view text, std::size_t position);
bool HoldsPlaceholder(std::string_view text);

/// A text from "[" to "]" without further brackets, or nothing where a placeholder begins that is
/// not closed before the next bracket.
struct Group {
    std::size_t start;
    std::size_t end;
    bool isBehindOpenBracket;  // and no other bracket is in between
    std::uint32_t hash = 0;    // for TokenIndex
    const IndexedToken* token = nullptr;

    std::string_view In(std::string_view text) const { return text.substr(start, end - start); }
};

/// Replaces `groups` by those of the text, either all or those that begin as placeholders do.
void FindGroups(std::string_view text, const PageOutline& outline, bool all,
                std::vector<Group>& groups);

}  // namespace cvlang
