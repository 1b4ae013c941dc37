// Copying folders with all their content.
#pragma once

#include <filesystem>
#include <functional>

#include "platform/FileCopy.h"

namespace cvlang {

/// Called for each file, to copy it.
using FileCopier = std::function<void(const CopiedFile& file)>;

/// Copies the content of `from` into the existing folder `to`. First come the files directly in it,
/// with only the archive attribute, then its folders. Deliberate: files in these keep their
/// attributes. A link to a folder is followed in `from`, unless it leads back to a folder that is
/// being copied. A link in `to` and everything behind it are unchanged. No folder is copied onto
/// itself.
void CopyFolder(const std::filesystem::path& from, const std::filesystem::path& to, bool toIsNew,
                const FileCopier& copyFile);

}  // namespace cvlang
