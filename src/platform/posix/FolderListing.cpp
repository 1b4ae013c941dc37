#include "platform/FolderListing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <string_view>

#include "text/AsciiCase.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Where an entry belongs in a listing, or nowhere (devices, pipes and the folder's own two names).
std::vector<fs::path>* ListFor(const dirent& entry, DIR* folder, FolderListing& listing) {
    const std::string_view name = entry.d_name;
    if (name == "." || name == "..")
        return nullptr;
    if (entry.d_type == DT_REG)
        return &listing.files;
    if (entry.d_type == DT_DIR)
        return &listing.folders;
    // A link, or a file system that tells no kinds.
    struct stat status {};
    if (fstatat(dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return nullptr;
    const bool isLink = S_ISLNK(status.st_mode);
    if (isLink && fstatat(dirfd(folder), entry.d_name, &status, 0) != 0)
        return nullptr;
    if (S_ISREG(status.st_mode))
        return &listing.files;
    if (!S_ISDIR(status.st_mode))
        return nullptr;
    return isLink ? &listing.linkedFolders : &listing.folders;
}

bool PrecedesInDirectoryWindow(const fs::path& a, const fs::path& b) {
    const std::string& left = a.native();
    const std::string& right = b.native();
    const auto [inLeft, inRight] =
        std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                      [](char x, char y) { return LowerAscii(x) == LowerAscii(y); });
    if (inLeft == left.end() || inRight == right.end())
        return inLeft == left.end() && (inRight != right.end() || left < right);
    return static_cast<unsigned char>(LowerAscii(*inLeft)) <
           static_cast<unsigned char>(LowerAscii(*inRight));
}

}  // namespace

FolderListing ListFolder(const fs::path& folder) {
    FolderListing listing;
    const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(folder.c_str()), closedir);
    if (open == nullptr)
        return listing;
    while (const dirent* entry = readdir(open.get())) {
        if (auto* list = ListFor(*entry, open.get(), listing))
            list->emplace_back(entry->d_name);
    }
    for (auto* list : {&listing.files, &listing.folders, &listing.linkedFolders})
        std::sort(list->begin(), list->end(), PrecedesInDirectoryWindow);
    return listing;
}

}  // namespace cvlang
