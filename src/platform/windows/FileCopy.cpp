#include "platform/FileCopy.h"

#include <windows.h>

#include "platform/windows/LongPath.h"

namespace cvlang {

namespace fs = std::filesystem;

bool CopyOneFile(const Folder& from, const fs::path& name, const Folder& to,
                 const TargetName& target, CopiedAttributes attributes) {
    const std::wstring original = LongPath(from.Path() / name);
    const std::wstring copy = LongPath(to.Path() / target.name);
    if (target.exists) {
        // Windows copies over neither read-only nor hidden files.
        constexpr DWORD kRefused = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN;
        const DWORD existing = GetFileAttributesW(copy.c_str());
        if (existing != INVALID_FILE_ATTRIBUTES && (existing & kRefused) != 0)
            SetFileAttributesW(copy.c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    if (!CopyFileW(original.c_str(), copy.c_str(), FALSE))
        return false;
    // Not every Windows gives a file that was overwritten the attributes of the original.
    SetFileAttributesW(copy.c_str(), attributes == CopiedAttributes::Archive
                                         ? FILE_ATTRIBUTE_ARCHIVE
                                         : GetFileAttributesW(original.c_str()));
    return true;
}

struct TargetNames::Names {
    fs::path folder;
};

TargetNames::TargetNames(const fs::path& folder, bool folderIsNew) {
    if (!folderIsNew)
        names_ = std::make_unique<Names>(Names{folder});
}

TargetNames::~TargetNames() = default;

TargetName TargetNames::Find(const fs::path& name) const {
    return {name, names_ != nullptr && EntryExists(names_->folder / name)};
}

}  // namespace cvlang
