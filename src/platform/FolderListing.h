// The content of a folder, and the targets of links.
#pragma once

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace cvlang {

/// The names of the entries directly in a folder, sorted as file managers do. On Windows junctions
/// count as links.
struct FolderListing {
    std::vector<std::filesystem::path> files;        // links to files among them
    std::vector<std::filesystem::path> linkedFiles;  // these again, and links to nothing
    std::vector<std::filesystem::path> folders;
    std::vector<std::filesystem::path> linkedFolders;
};

/// Lists the folder of exactly this name. The lists are empty when it cannot be read.
FolderListing ListFolder(const std::filesystem::path& folder);

/// Whether two of its files, or two of its folders, have names that differ only in letter case.
bool HasAlikeNames(const FolderListing& listing);

/// Whether the path is a link to a folder.
bool IsLinkedFolder(const std::filesystem::path& path);

/// The path with all links resolved; empty when it does not exist.
std::filesystem::path RealPath(const std::filesystem::path& path);

/// Whether `inner` is `outer` or below it. Both are real paths; an empty path contains nothing.
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
