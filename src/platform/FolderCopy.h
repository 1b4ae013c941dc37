// Copying folders as a whole.
#pragma once

#include <filesystem>
#include <functional>

#include "platform/FileCopy.h"

namespace cvlang {

/// Called for each file, to copy it.
using FileCopier = std::function<void(const CopiedFile& file)>;

/// Copies what is in `from` into the existing folder `to`: first the files that lie directly in it,
/// which get the archive attribute alone, then its folders, whose files keep theirs. A link to a
/// folder is followed in `from`, unless it leads back to a folder that is being copied; a link in
/// `to` is left alone with what is behind it. No folder is copied onto itself.
void CopyFolder(const std::filesystem::path& from, const std::filesystem::path& to, bool toIsNew,
                const FileCopier& copyFile);

}  // namespace cvlang
