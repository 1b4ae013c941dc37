// What lies in a folder.
#pragma once

#include <filesystem>
#include <vector>

namespace cvlang {

/// What lies directly in a folder: names without path, in the order of a directory window.
struct FolderListing {
    std::vector<std::filesystem::path> files;  // links to files among them
    std::vector<std::filesystem::path> folders;
    std::vector<std::filesystem::path> linkedFolders;
};

/// Of the folder by exactly this name. Empty lists when it cannot be read.
FolderListing ListFolder(const std::filesystem::path& folder);

}  // namespace cvlang
