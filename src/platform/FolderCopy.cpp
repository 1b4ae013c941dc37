#include "platform/FolderCopy.h"

#include <algorithm>

namespace cvlang {
namespace {

namespace fs = std::filesystem;

bool IsSameFolder(const fs::path& a, const fs::path& b) {
    std::error_code ignored;
    return fs::equivalent(a, b, ignored);
}

/// Whether the folder or one of those above it is `ancestor`.
bool LiesIn(const fs::path& folder, const fs::path& ancestor) {
    std::error_code failed;
    const fs::path inner = fs::canonical(folder, failed);
    const fs::path outer = fs::canonical(ancestor, failed);
    return !failed && std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
                          outer.end();
}

bool IsLinkedFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_symlink(fs::symlink_status(path, ignored)) && fs::is_directory(path, ignored);
}

void CopyFiles(const std::vector<fs::path>& names, const fs::path& from, const fs::path& to,
               const TargetNames& targets, CopiedAttributes attributes) {
    const Folder source(from);
    const Folder target(to);
    for (const fs::path& name : names)
        CopyOneFile(source, name, target, targets.Find(name), attributes);
}

void CopyFolders(const FolderListing& listing, const fs::path& from, const fs::path& to,
                 const TargetNames& targets);

void CopyFolder(const fs::path& from, const fs::path& to, bool exists) {
    if (exists && (IsLinkedFolder(to) || IsSameFolder(from, to)))
        return;
    // Listed before the copy exists: a folder copied into itself must not find its own copy.
    const FolderListing listing = ListFolder(from);
    const bool isNew = CreateFolder(to);
    const TargetNames targets(to, isNew);
    CopyFiles(listing.files, from, to, targets, CopiedAttributes::Kept);
    CopyFolders(listing, from, to, targets);
}

void CopyFolders(const FolderListing& listing, const fs::path& from, const fs::path& to,
                 const TargetNames& targets) {
    const auto copy = [&](const fs::path& name) {
        const TargetName target = targets.Find(name);
        CopyFolder(from / name, to / target.name, target.exists);
    };
    for (const fs::path& name : listing.folders)
        copy(name);
    for (const fs::path& name : listing.linkedFolders) {
        if (!LiesIn(from, from / name) && !LiesIn(to, from / name))
            copy(name);
    }
}

}  // namespace

void CopyFilesOf(const fs::path& from, const fs::path& to, CopiedAttributes attributes) {
    const FolderListing listing = ListFolder(from);
    if (!IsSameFolder(from, to)) {
        CopyFiles(listing.files, from, to, TargetNames(to, false), attributes);
    } else if (attributes == CopiedAttributes::Archive) {
        for (const fs::path& name : listing.files)
            ResetAttributes(from / name);
    }
}

void CopyFoldersOf(const fs::path& from, const fs::path& to) {
    if (!IsSameFolder(from, to))
        CopyFolders(ListFolder(from), from, to, TargetNames(to, false));
}

}  // namespace cvlang
