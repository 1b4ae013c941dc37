// Searching a list of entries. A search starts after the selected entry, continues at the top, and
// ends with the selected entry.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// The next entry that contains a text, in any letter case. Without a selection the search starts
/// at the top.
std::optional<std::size_t> FindEntry(const std::vector<std::u16string>& entries,
                                     std::optional<std::size_t> selected, std::u16string_view text);

/// The next entry whose token has no value in the selected language's map file.
std::optional<std::size_t> FindUntranslated(const Program& program,
                                            const std::vector<std::u16string>& entries,
                                            std::optional<std::size_t> selected,
                                            const Selection& selection);

}  // namespace cvlang
