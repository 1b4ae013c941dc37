// Changes of the token map files: saving a translation, adding and removing tokens.
#pragma once

#include <filesystem>
#include <string_view>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// Sets the value of a token, or of a list entry, in the selected language's map file. A failure
/// leaves no more than a line in the log.
void UpdateToken(const Program& program, const Selection& selection, std::u16string_view token,
                 std::u16string_view value);

/// Appends a token to a reference map file, which is created when it is missing. Name and value are
/// taken as they are; a token that exists already gets a second line.
void AddTokenLine(const std::filesystem::path& referenceMapFile, std::u16string_view name,
                  std::u16string_view value);

/// Removes a token's lines from a reference map file. The file is rewritten through one whose name
/// has a "D" appended; a missing file stays missing.
void RemoveFromReferenceFile(const std::filesystem::path& referenceMapFile,
                             std::u16string_view token);

/// Removes a token's lines from all language map files (*.map) beside a reference map file that
/// belong to the same application and base.
void RemoveFromLanguageFiles(const std::filesystem::path& referenceMapFile,
                             std::u16string_view token);

}  // namespace cvlang
