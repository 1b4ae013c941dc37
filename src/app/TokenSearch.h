// Finding the next token of interest in a list of entries. A search begins behind the selected
// entry, goes on at the top when it has reached the end, and looks at the selected one last.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// The next entry that holds a text, in any letter case. Without a selection (nothing) the search
/// begins at the top.
std::optional<std::size_t> FindEntry(const std::vector<std::u16string>& entries,
                                     std::optional<std::size_t> selected, std::u16string_view text);

/// The next entry whose token has no value in a language's map file of the selected application.
std::optional<std::size_t> FindUntranslated(const Program& program,
                                            const std::vector<std::u16string>& entries,
                                            std::optional<std::size_t> selected,
                                            const Selection& selection);

}  // namespace cvlang
