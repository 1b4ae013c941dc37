// Copying single files, with their attributes, over files that may be there.
#pragma once

#include <filesystem>
#include <memory>

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

/// Copies one file from a folder to another. An existing target is replaced, read-only or not, and
/// a file copied onto itself stays as it is. A copy that cannot be completed is removed. False on
/// failure.
bool CopyOneFile(const Folder& from, const std::filesystem::path& name, const Folder& to,
                 const TargetName& target, CopiedAttributes attributes);

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
