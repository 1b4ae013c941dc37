// What lies in a folder, and where links lead to.
#pragma once

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace cvlang {

/// What lies directly in a folder: names without path, in the order of a directory window. On
/// Windows junctions count as links.
struct FolderListing {
    std::vector<std::filesystem::path> files;        // links to files among them
    std::vector<std::filesystem::path> linkedFiles;  // these once more, and links to nothing
    std::vector<std::filesystem::path> folders;
    std::vector<std::filesystem::path> linkedFolders;
};

/// Of the folder by exactly this name. Empty lists when it cannot be read.
FolderListing ListFolder(const std::filesystem::path& folder);

/// Whether two of its files, or two of its folders, have names that differ only in letter case.
bool HasAlikeNames(const FolderListing& listing);

/// Whether the path is a link to a folder.
bool IsLinkedFolder(const std::filesystem::path& path);

/// The path without links; empty when nothing is there.
std::filesystem::path RealPath(const std::filesystem::path& path);

/// Whether `inner` is `outer` or lies below it. Both are real paths; nothing lies in an empty one.
inline bool IsWithin(const std::filesystem::path& inner, const std::filesystem::path& outer) {
    return !outer.empty() &&
           std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
               outer.end();
}

inline bool IsSameFolder(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code ignored;
    return std::filesystem::equivalent(a, b, ignored);
}

}  // namespace cvlang
