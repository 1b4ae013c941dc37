#include "platform/FileSystem.h"

#include <algorithm>

#include "platform/windows/FileHandle.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

}  // namespace

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

FileStatus ReadFile(const fs::path& path, FileContent& content) {
    return ReadFile(Folder(path.parent_path()), path.filename(), content);
}

bool WriteFile(const fs::path& path, std::string_view bytes, Durability durability) {
    const FileHandle file(path, GENERIC_WRITE, CREATE_ALWAYS);
    return file.IsOpen() && file.WriteAll(bytes) &&
           (durability == Durability::Cached || FlushFileBuffers(file.Get()));
}

std::error_code AppendToFile(const fs::path& path, std::string_view bytes) {
    const FileHandle file(path, FILE_APPEND_DATA, OPEN_ALWAYS);
    if (!file.IsOpen() || !file.WriteAll(bytes))
        return LastError();
    return {};
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

}  // namespace cvlang
