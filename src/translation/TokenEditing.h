// Changes of the token map files: saving a translation, adding and removing tokens.
#pragma once

#include <filesystem>
#include <string_view>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// Sets the value of a token, or of a list entry, in the selected language's map file. A failure is
/// only logged.
void UpdateToken(const Program& program, const Selection& selection, std::u16string_view token,
                 std::u16string_view value);

/// Appends a token to a reference map file, and creates a missing file. Deliberate: name and value
/// are not checked, and an existing token gets a second line. Throws filesystem_error when the file
/// cannot be written; it is then unchanged.
void AddTokenLine(const std::filesystem::path& referenceMapFile, std::u16string_view name,
                  std::u16string_view value);

/// Removes a token's lines from a reference map file. The temporary file has a "D" appended to its
/// name. A missing file stays missing.
void RemoveFromReferenceFile(const std::filesystem::path& referenceMapFile,
                             std::u16string_view token);

/// Removes a token's lines from the language map files (*.map) of the same application and base, in
/// the folder of the reference map file.
void RemoveFromLanguageFiles(const std::filesystem::path& referenceMapFile,
                             std::u16string_view token);

}  // namespace cvlang
