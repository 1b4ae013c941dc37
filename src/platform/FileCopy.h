// Files of one folder that take their place in another: copied as they are, or written as pages.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "platform/FileSystem.h"

namespace cvlang {

enum class CopiedAttributes {
    Kept,    // those of the original
    Archive  // archive alone, which clears read-only
};

/// Where an entry of a folder is to be written.
struct TargetName {
    std::filesystem::path name;
    bool exists;
};

/// One file on its way from a folder to another.
struct CopiedFile {
    const Folder& from;
    const std::filesystem::path& name;
    const Folder& to;
    TargetName target;
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

/// The spellings that names have in a folder that files are to be copied to.
class TargetNames {
  public:
    /// A folder that was just created needs no look at the disk.
    TargetNames(const std::filesystem::path& folder, bool folderIsNew);
    ~TargetNames();
    TargetNames(const TargetNames&) = delete;
    TargetNames& operator=(const TargetNames&) = delete;

    TargetName Find(const std::filesystem::path& name) const;

  private:
    struct Names;
    std::unique_ptr<Names> names_;  // none for a new folder
};

}  // namespace cvlang
