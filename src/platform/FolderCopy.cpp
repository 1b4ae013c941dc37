#include "platform/FolderCopy.h"

#include <algorithm>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/FolderListing.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

bool IsSameFolder(const fs::path& a, const fs::path& b) {
    std::error_code ignored;
    return fs::equivalent(a, b, ignored);
}

bool IsLinkedFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_symlink(fs::symlink_status(path, ignored)) && fs::is_directory(path, ignored);
}

void CopyFiles(const std::vector<fs::path>& names, const fs::path& from, const fs::path& to,
               const TargetNames& targets, CopiedAttributes attributes,
               const FileCopied& fileCopied) {
    const Folder source(from);
    const Folder target(to);
    for (const fs::path& name : names) {
        CopyOneFile(source, name, target, targets.Find(name), attributes);
        fileCopied();
    }
}

/// Copies folders within folders, and knows on the way which ones are being copied from and to.
class FolderCopier {
  public:
    explicit FolderCopier(const FileCopied& fileCopied) : fileCopied_(fileCopied) {}

    void CopyFolders(const FolderListing& listing, const fs::path& from, const fs::path& to,
                     const TargetNames& targets) {
        const auto copy = [&](const fs::path& name) {
            const TargetName target = targets.Find(name);
            CopyFolder(from / name, to / target.name, target.exists);
        };
        for (const fs::path& name : listing.folders)
            copy(name);
        for (const fs::path& name : listing.linkedFolders) {
            const std::size_t depth = busy_.size();
            busy_.push_back(RealPath(from));
            busy_.push_back(RealPath(to));
            if (!LeadsBack(from / name))
                copy(name);
            busy_.resize(depth);
        }
    }

  private:
    static fs::path RealPath(const fs::path& path) {
        std::error_code ignored;
        return fs::canonical(path, ignored);
    }

    /// Whether a link leads to a folder that is being copied, or to one above it.
    bool LeadsBack(const fs::path& link) const {
        const fs::path outer = RealPath(link);
        return std::any_of(busy_.begin(), busy_.end(), [&outer](const fs::path& inner) {
            return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
                   outer.end();
        });
    }

    void CopyFolder(const fs::path& from, const fs::path& to, bool exists) {
        if (exists && (IsLinkedFolder(to) || IsSameFolder(from, to)))
            return;
        // Listed before the copy exists: a folder copied into itself must not find its own copy.
        const FolderListing listing = ListFolder(from);
        const bool isNew = CreateFolder(to);
        const TargetNames targets(to, isNew);
        CopyFiles(listing.files, from, to, targets, CopiedAttributes::Kept, fileCopied_);
        CopyFolders(listing, from, to, targets);
    }

    const FileCopied& fileCopied_;
    std::vector<fs::path> busy_;  // the real folders on both sides of every link that was followed
};

}  // namespace

void CopyFilesOf(const fs::path& from, const fs::path& to, CopiedAttributes attributes,
                 const FileCopied& fileCopied) {
    const FolderListing listing = ListFolder(from);
    if (!IsSameFolder(from, to)) {
        CopyFiles(listing.files, from, to, TargetNames(to, false), attributes, fileCopied);
    } else if (attributes == CopiedAttributes::Archive) {
        for (const fs::path& name : listing.files)
            ResetAttributes(from / name);
    }
}

void CopyFoldersOf(const fs::path& from, const fs::path& to, const FileCopied& fileCopied) {
    if (!IsSameFolder(from, to))
        FolderCopier(fileCopied).CopyFolders(ListFolder(from), from, to, TargetNames(to, false));
}

}  // namespace cvlang
