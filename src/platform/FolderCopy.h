// Copying folders as a whole.
#pragma once

#include <filesystem>
#include <functional>

#include "platform/FileCopy.h"

namespace cvlang {

/// Called after each file, whether it could be copied or not.
using FileCopied = std::function<void()>;

/// Copies the files that lie directly in `from` into the existing folder `to`, overwriting. A file
/// that cannot be copied is passed over. A folder copied onto itself only has its files' attributes
/// changed.
void CopyFilesOf(const std::filesystem::path& from, const std::filesystem::path& to,
                 CopiedAttributes attributes, const FileCopied& fileCopied);

/// Copies the folders that lie directly in `from`, with all that is in them, into the existing
/// folder `to`. A link to a folder is followed in `from`, unless it leads back to a folder that is
/// being copied; a link in `to` is left alone with what is behind it.
void CopyFoldersOf(const std::filesystem::path& from, const std::filesystem::path& to,
                   const FileCopied& fileCopied);

}  // namespace cvlang
