#include "platform/FileSystem.h"

#include <algorithm>

#include "platform/windows/FileHandle.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

/// Searches for entries of a name or pattern: the first one, or null when there is none.
auto StartSearch(const fs::path& pattern, WIN32_FIND_DATAW& first) {
    const HANDLE search = FindFirstFileExW(LongPath(pattern).c_str(), FindExInfoBasic, &first,
                                           FindExSearchNameMatch, nullptr, 0);
    return std::unique_ptr<void, BOOL(WINAPI*)(HANDLE)>(
        search == INVALID_HANDLE_VALUE ? nullptr : search, FindClose);
}

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

fs::path PathFromText(std::u16string_view text) {
    std::wstring path(text.begin(), text.end());
    std::replace(path.begin(), path.end(), L'\0', L'\uFFFD');
    return path;
}

std::u16string TextFromPath(const fs::path& path) {
    // Not u16string(), which refuses lone surrogates.
    return {path.native().begin(), path.native().end()};
}

fs::path FindExisting(const fs::path& path) {
    return path;
}

fs::path ExecutableFolder() {
    std::wstring file(32768, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
    file.resize(length);
    return fs::path(file).parent_path();
}

std::wstring LongPath(const fs::path& path) {
    constexpr std::size_t kShort = 240;  // a folder's path must leave room for an 8.3 name
    const std::wstring& text = path.native();
    if (text.size() < kShort || text.rfind(LR"(\\?\)", 0) == 0)
        return text;
    // Not lexically_normal(), which removes one of the two separators before a server's name.
    std::wstring full(32768, L'\0');
    full.resize(
        GetFullPathNameW(text.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.rfind(LR"(\\)", 0) == 0)
        return LR"(\\?\UNC)" + full.substr(1);
    return LR"(\\?\)" + full;
}

Folder::Folder() = default;

Folder::Folder(const fs::path& path) : path_(path) {}

Folder::~Folder() = default;

FileStatus ReadFile(const Folder& folder, const fs::path& name, FileContent& content) {
    content.size_ = 0;
    const FileHandle file(folder.Path() / name, GENERIC_READ, OPEN_EXISTING);
    if (!file.IsOpen()) {
        return GetLastError() == ERROR_FILE_NOT_FOUND ? FileStatus::NotFound
                                                      : FileStatus::OtherError;
    }
    BY_HANDLE_FILE_INFORMATION information{};
    if (!GetFileInformationByHandle(file.Get(), &information))
        return FileStatus::OtherError;
    content.Reserve((static_cast<std::size_t>(information.nFileSizeHigh) << 32) +
                    information.nFileSizeLow + 1);
    for (;;) {
        const std::size_t room = content.capacity_ - content.size_;
        DWORD count = 0;
        if (!::ReadFile(file.Get(), content.buffer_.get() + content.size_,
                        static_cast<DWORD>(std::min<std::size_t>(room, kLargestTransfer)), &count,
                        nullptr)) {
            content.size_ = 0;
            return FileStatus::OtherError;
        }
        content.size_ += count;
        if (count == 0)
            return FileStatus::Okay;
        if (count == room)
            content.Reserve(content.capacity_ * 2);
    }
}

std::error_code WriteFile(const fs::path& path, std::string_view bytes, Durability durability) {
    const FileHandle file(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (file.IsOpen() && file.WriteAll(bytes) &&
        (durability == Durability::Cached || FlushFileBuffers(file.Get())))
        return {};
    return LastError();
}

std::error_code AppendToFile(const fs::path& path, std::string_view bytes) {
    const FileHandle file(path, FILE_APPEND_DATA, OPEN_ALWAYS);
    if (file.IsOpen() && file.WriteAll(bytes))
        return {};
    return LastError();
}

bool EntryExists(const fs::path& path) {
    return GetFileAttributesW(LongPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool RemoveFile(const fs::path& path) {
    return DeleteFileW(LongPath(path).c_str()) || !EntryExists(path);
}

bool RenameFile(const fs::path& from, const fs::path& to) {
    const DWORD attributes = GetFileAttributesW(LongPath(from).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
           MoveFileW(LongPath(from).c_str(), LongPath(to).c_str());
}

bool CreateFolder(const fs::path& path) {
    return CreateDirectoryW(LongPath(path).c_str(), nullptr) != 0;
}

FolderListing ListFolder(const fs::path& folder) {
    FolderListing listing;
    WIN32_FIND_DATAW entry{};
    const auto search = StartSearch(folder / L"*", entry);
    for (bool found = search != nullptr; found; found = FindNextFileW(search.get(), &entry))
        Add(entry, listing);
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
    return StartSearch(path, entry) != nullptr &&
           (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && IsLink(entry);
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

struct EntryNames::Names {
    fs::path folder;
};

EntryNames::EntryNames(const fs::path& folder, bool folderIsNew) {
    if (!folderIsNew)
        names_ = std::make_unique<Names>(Names{folder});
}

EntryNames::~EntryNames() = default;

EntryName EntryNames::Find(const fs::path& name) const {
    WIN32_FIND_DATAW entry{};
    if (names_ == nullptr || StartSearch(names_->folder / name, entry) == nullptr)
        return {name, false};
    return {entry.cFileName, true};
}

}  // namespace cvlang
