// The tokens of an application base as lists show them: token, ": ", English value.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace cvlang {

/// The entries of a reference map file, in its order; none when it cannot be opened. A token
/// without a value stands alone, and only if it begins like a token.
std::vector<std::u16string> ListTokens(const std::filesystem::path& referenceMapFile);

/// The two parts of a list entry, trimmed of blanks. A value ends at its own first colon.
struct TokenEntry {
    std::u16string_view token;
    std::u16string_view value;
};
TokenEntry SplitTokenEntry(std::u16string_view entry);

}  // namespace cvlang
