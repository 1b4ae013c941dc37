#include "platform/FileCopy.h"

#include <algorithm>
#include <vector>

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Copies folders recursively, and remembers which ones are being copied.
class FolderCopier {
  public:
    explicit FolderCopier(const FileCopier& copyFile) : copyFile_(copyFile) {}

    void CopyFiles(const FolderListing& listing, const fs::path& from, const fs::path& to,
                   const EntryNames& targets, CopiedAttributes attributes) {
        const Folder source(from);
        const Folder target(to);
        for (const fs::path& name : listing.files)
            copyFile_({source, name, target, targets.Find(name), attributes});
    }

    void CopyFolders(const FolderListing& listing, const fs::path& from, const fs::path& to,
                     const EntryNames& targets) {
        for (const fs::path& name : listing.folders)
            CopySubfolder(from / name, to, targets.Find(name));
        for (const fs::path& name : listing.linkedFolders) {
            const std::size_t depth = busy_.size();
            busy_.push_back(RealPath(from));
            busy_.push_back(RealPath(to));
            if (!LeadsBack(from / name))
                CopySubfolder(from / name, to, targets.Find(name));
            busy_.resize(depth);
        }
    }

  private:
    /// Whether a link leads to a folder that is being copied, or to one above it.
    bool LeadsBack(const fs::path& link) const {
        const fs::path outer = RealPath(link);
        return std::any_of(busy_.begin(), busy_.end(),
                           [&outer](const fs::path& inner) { return IsWithin(inner, outer); });
    }

    void CopySubfolder(const fs::path& from, const fs::path& parent, const EntryName& target) {
        const fs::path to = parent / target.name;
        if (target.exists && (IsLinkedFolder(to) || IsSameFolder(from, to)))
            return;
        // Listed before the copy exists, so that a folder copied into itself does not copy its
        // copy.
        const FolderListing listing = ListFolder(from);
        const bool isNew = CreateFolder(to);
        const EntryNames targets(to, isNew);
        CopyFiles(listing, from, to, targets, CopiedAttributes::Kept);
        CopyFolders(listing, from, to, targets);
    }

    const FileCopier& copyFile_;
    std::vector<fs::path> busy_;  // the real folders on both sides of every link that was followed
};

}  // namespace

void CopyFolder(const fs::path& from, const fs::path& to, bool toIsNew,
                const FileCopier& copyFile) {
    if (IsSameFolder(from, to))
        return;
    FolderCopier copier(copyFile);
    const FolderListing listing = ListFolder(from);
    copier.CopyFiles(listing, from, to, EntryNames(to, toIsNew), CopiedAttributes::Archive);
    // Deliberate: listed again, so that a folder is not copied when its name differs only in case
    // from that of a file that was.
    copier.CopyFolders(listing, from, to, EntryNames(to, false));
}

}  // namespace cvlang
