// Files of keyed lines: key TAB value.
#pragma once

#include <filesystem>
#include <string_view>

#include "config/Logs.h"

namespace cvlang {

/// Gives every line that begins with the key the new value, or adds the line at the end. The file
/// is rewritten through the temporary file: copied with the change, deleted, and the copy renamed.
/// A missing file is created with that one line; one that cannot be opened leaves "Unable to update
/// token" in the log.
void RewriteKeyedLine(const std::filesystem::path& target, const std::filesystem::path& temporary,
                      std::u16string_view key, std::u16string_view value, const Logs& logs);

}  // namespace cvlang
