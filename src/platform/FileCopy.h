// Files of one folder that take their place in another: copied as they are, or written as pages;
// and whole folders.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "platform/FileSystem.h"

namespace cvlang {

enum class CopiedAttributes {
    Kept,    // those of the original
    Archive  // archive alone, which clears read-only
};

/// One file on its way from a folder to another.
struct CopiedFile {
    const Folder& from;
    const std::filesystem::path& name;
    const Folder& to;
    EntryName target;
    CopiedAttributes attributes;
};

/// An existing target is replaced, read-only or not, and a file copied onto itself stays as it is.
/// A copy that cannot be completed is removed. False on failure.
bool CopyOneFile(const CopiedFile& file);

/// Makes `bytes` the content of the target, as if the copy of `original` had been rewritten. On
/// Linux an existing file is written over and keeps its owner and permissions, where only this file
/// changes by that. A new file is writable, and otherwise not more open than the original. A file
/// that cannot be completed is removed. False on failure.
bool WritePage(const CopiedFile& file, std::string_view bytes, const FileContent& original);

/// Clears what keeps a file from being changed: read-only and archive on Windows; on Linux its
/// owner gets the permission to write. Links, and on Linux files of several names, stay as they
/// are.
void ResetAttributes(const Folder& folder, const std::filesystem::path& name);

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
