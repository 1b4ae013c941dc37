#include "platform/FolderListing.h"

#include <algorithm>
#include <string_view>

#include "platform/windows/FileHandle.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Only links and junctions refer to another name; other reparse points are ordinary files and
/// folders. Wine reports no tag.
bool IsLink(const WIN32_FIND_DATAW& entry) {
    constexpr DWORD kNameSurrogate = 0x20000000;
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (entry.dwReserved0 == 0 || (entry.dwReserved0 & kNameSurrogate) != 0);
}

void Add(const WIN32_FIND_DATAW& entry, FolderListing& listing) {
    const std::wstring_view name = entry.cFileName;
    if (name == L"." || name == L"..")
        return;
    const bool isLink = IsLink(entry);
    if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        (isLink ? listing.linkedFolders : listing.folders).emplace_back(name);
    } else {
        listing.files.emplace_back(name);
        if (isLink)
            listing.linkedFiles.emplace_back(name);
    }
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
        Add(entry, listing);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    for (auto* list :
         {&listing.files, &listing.linkedFiles, &listing.folders, &listing.linkedFolders})
        std::sort(list->begin(), list->end(), PrecedesInDirectoryWindow);
    return listing;
}

bool HasAlikeNames(const FolderListing& /*listing*/) {
    return false;
}

bool IsLinkedFolder(const fs::path& path) {
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileExW(LongPath(path).c_str(), FindExInfoBasic, &entry,
                                           FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && IsLink(entry);
}

fs::path RealPath(const fs::path& path) {
    const FileHandle file(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    std::wstring name(32768, L'\0');
    name.resize(file.IsOpen() ? GetFinalPathNameByHandleW(file.Get(), name.data(),
                                                          static_cast<DWORD>(name.size()),
                                                          FILE_NAME_NORMALIZED)
                              : 0);
    return name;
}

}  // namespace cvlang
