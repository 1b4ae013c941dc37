#include "platform/FolderListing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <unordered_set>

#include "platform/LetterCase.h"
#include "text/Unicode.h"

#include "text/AsciiCase.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Adds an entry to a listing; leaves out devices, pipes, "." and "..".
void Add(const dirent& entry, DIR* folder, FolderListing& listing) {
    const std::string_view name = entry.d_name;
    if (name == "." || name == "..")
        return;
    unsigned char type = entry.d_type;
    bool isLink = false;
    if (type != DT_REG &&
        type != DT_DIR) {  // a link, or a file system without types in its listings
        struct stat status {};
        if (fstatat(dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return;
        isLink = S_ISLNK(status.st_mode);
        if (isLink && fstatat(dirfd(folder), entry.d_name, &status, 0) != 0)
            listing.linkedFiles.emplace_back(name);
        type = IFTODT(status.st_mode);
    }
    if (type == DT_DIR) {
        (isLink ? listing.linkedFolders : listing.folders).emplace_back(name);
    } else if (type == DT_REG) {
        listing.files.emplace_back(name);
        if (isLink)
            listing.linkedFiles.emplace_back(name);
    }
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
    while (const dirent* entry = readdir(open.get()))
        Add(*entry, open.get(), listing);
    for (auto* list :
         {&listing.files, &listing.linkedFiles, &listing.folders, &listing.linkedFolders})
        std::sort(list->begin(), list->end(), PrecedesInDirectoryWindow);
    return listing;
}

bool HasAlikeNames(const FolderListing& listing) {
    const auto areAlike = [](const std::vector<fs::path>& names) {
        std::unordered_set<std::u16string> capitals;
        for (const fs::path& name : names)
            capitals.insert(ToUpper(Utf8ToUtf16(name.native())));
        return capitals.size() < names.size();
    };
    return areAlike(listing.files) || areAlike(listing.folders);
}

bool IsLinkedFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_symlink(fs::symlink_status(path, ignored)) && fs::is_directory(path, ignored);
}

fs::path RealPath(const fs::path& path) {
    std::error_code ignored;
    return fs::canonical(path, ignored);
}

}  // namespace cvlang
