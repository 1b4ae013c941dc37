#include "platform/FolderListing.h"

#include <windows.h>

#include <algorithm>
#include <string_view>

#include "platform/windows/LongPath.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path>& ListFor(const WIN32_FIND_DATAW& entry, FolderListing& listing) {
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
        return listing.files;
    const bool linked = (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return linked ? listing.linkedFolders : listing.folders;
}

bool PrecedesInDirectoryWindow(const fs::path& a, const fs::path& b) {
    const int order = CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE);
    return order == CSTR_LESS_THAN || (order == CSTR_EQUAL && a.native() < b.native());
}

}  // namespace

FolderListing ListFolder(const fs::path& folder) {
    FolderListing listing;
    WIN32_FIND_DATAW entry{};
    const std::wstring pattern = LongPath(folder / L"*");
    const HANDLE search = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &entry,
                                           FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE)
        return listing;
    do {
        const std::wstring_view name = entry.cFileName;
        if (name != L"." && name != L"..")
            ListFor(entry, listing).emplace_back(name);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    for (auto* list : {&listing.files, &listing.folders, &listing.linkedFolders})
        std::sort(list->begin(), list->end(), PrecedesInDirectoryWindow);
    return listing;
}

}  // namespace cvlang
