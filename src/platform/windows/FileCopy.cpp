#include "platform/FileCopy.h"

#include "platform/windows/FileHandle.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// A file's place on the disk and its number of names; all 0 when there is none.
BY_HANDLE_FILE_INFORMATION Information(const fs::path& path, DWORD flags) {
    BY_HANDLE_FILE_INFORMATION information{};
    const FileHandle file(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, flags);
    if (file.IsOpen())
        GetFileInformationByHandle(file.Get(), &information);
    return information;
}

/// Deletes a file or a link, read-only or not. False when it is still there afterwards.
bool Delete(const fs::path& path) {
    if (RemoveFile(path))
        return true;
    SetFileAttributesW(LongPath(path).c_str(), FILE_ATTRIBUTE_NORMAL);
    return RemoveFile(path);
}

/// Makes way for a copy. False when the two are the same file.
bool Prepare(const fs::path& original, const fs::path& copy) {
    const auto existing = Information(copy, FILE_FLAG_OPEN_REPARSE_POINT);
    const auto other = Information(original, FILE_ATTRIBUTE_NORMAL);
    if (existing.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
        existing.nFileIndexHigh == other.nFileIndexHigh &&
        existing.nFileIndexLow == other.nFileIndexLow)
        return false;
    // Nothing but this file may change, and Windows copies over neither read-only nor hidden files.
    constexpr DWORD kRefused = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN;
    if (existing.nNumberOfLinks > 1 ||
        (existing.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        Delete(copy);
    } else if ((existing.dwFileAttributes & kRefused) != 0) {
        SetFileAttributesW(LongPath(copy).c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    return true;
}

}  // namespace

bool CopyOneFile(const CopiedFile& file) {
    const fs::path from = file.from.Path() / file.name;
    const fs::path to = file.to.Path() / file.target.name;
    if (file.target.exists) {
        if (!FileHandle(from, GENERIC_READ, OPEN_EXISTING).IsOpen())
            return false;
        if (!Prepare(from, to))
            return true;
    }
    const std::wstring original = LongPath(from);
    const std::wstring copy = LongPath(to);
    if (!CopyFileW(original.c_str(), copy.c_str(), FALSE))
        return false;
    // Not every Windows gives a file that was overwritten the attributes of the original.
    SetFileAttributesW(copy.c_str(), file.attributes == CopiedAttributes::Archive
                                         ? FILE_ATTRIBUTE_ARCHIVE
                                         : GetFileAttributesW(original.c_str()));
    return true;
}

bool WritePage(const CopiedFile& file, std::string_view bytes, const FileContent& /*original*/) {
    const fs::path path = file.to.Path() / file.target.name;
    if (file.target.exists && !Delete(path))
        return false;
    {
        const FileHandle page(path, GENERIC_WRITE, CREATE_NEW);
        if (!page.IsOpen())
            return false;
        if (page.WriteAll(bytes))
            return true;
    }
    RemoveFile(path);
    return false;
}

void ResetAttributes(const Folder& folder, const fs::path& name) {
    constexpr DWORD kReset = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE;
    const std::wstring file = LongPath(folder.Path() / name);
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0 &&
        (attributes & kReset) != 0)
        SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

}  // namespace cvlang
