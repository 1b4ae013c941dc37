#include "platform/FileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/Paths.h"
#include "platform/posix/Descriptor.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
    return {errno, std::generic_category()};
}

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

FileStatus StatusOfFailedOpen(const fs::path& folder) {
    const bool noSuchName = errno == ENOENT;
    return noSuchName && IsFolder(FindExisting(folder)) ? FileStatus::NotFound
                                                        : FileStatus::OtherError;
}

int OpenExisting(const Folder& folder, const fs::path& name) {
    const int exact = Open({folder, name}, O_RDONLY);
    if (exact >= 0 || errno != ENOENT)
        return exact;
    return Open(Place(FindExisting(folder.Path() / name)), O_RDONLY);
}

fs::path FolderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : ".";
}

/// Opens a file to be replaced. A read-only file is refused, for root too.
int OpenForWriting(const Place& place) {
    const int created = Open(place, O_WRONLY | O_CREAT | O_EXCL);
    struct stat existing {};
    if (created >= 0 || errno != EEXIST ||
        fstatat(place.directory, place.name, &existing, 0) != 0 || IsReadOnly(existing))
        return created;
    return Open(place, O_WRONLY | O_TRUNC);
}

/// Flushes the file. False when the disk fails; a file system without flushing is no failure.
bool Flush(const Descriptor& file) {
    return Uninterrupted([&] { return fsync(file.Number()); }) == 0 || errno == EINVAL;
}

bool Write(const Place& place, std::string_view bytes, Durability durability) {
    Descriptor file(OpenForWriting(place));
    if (!file.IsOpen())
        return false;
    const bool written = WriteAll(file, bytes) && (durability == Durability::Cached || Flush(file));
    return file.Close() && written;
}

}  // namespace

Folder::Folder(const fs::path& path)
    : path_(path), descriptor_(Open(Place(path), O_PATH | O_DIRECTORY)) {}

Folder::~Folder() {
    if (descriptor_ >= 0)
        close(descriptor_);
}

FileStatus ReadFile(const Folder& folder, const fs::path& name, FileContent& content) {
    content.size_ = 0;
    const Descriptor file(OpenExisting(folder, name));
    struct stat status {};
    if (!file.IsOpen())
        return StatusOfFailedOpen(folder.Path());
    if (fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return FileStatus::OtherError;
    content.permissions_ = status.st_mode & 0777;
    // One byte more than expected: a read of exactly the expected size then shows the end.
    const auto expected = static_cast<std::size_t>(status.st_size);
    content.Reserve(expected + 1);
    for (;;) {
        const std::size_t room = content.capacity_ - content.size_;
        const ssize_t count = Read(file, content.buffer_.get() + content.size_, room);
        if (count < 0) {
            content.size_ = 0;
            return FileStatus::OtherError;
        }
        content.size_ += static_cast<std::size_t>(count);
        if (count == 0 || content.size_ == expected)
            return FileStatus::Okay;
        if (content.size_ == content.capacity_)
            content.Reserve(content.capacity_ * 2);
    }
}

FileStatus ReadFile(const fs::path& path, FileContent& content) {
    return ReadFile(Folder(FindExisting(FolderOf(path))), path.filename(), content);
}

bool WriteFile(const fs::path& path, std::string_view bytes, Durability durability) {
    return Write(Place(path), bytes, durability);
}

std::error_code AppendToFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(Open(Place(path), O_WRONLY | O_CREAT | O_APPEND));
    struct stat status {};
    if (file.IsOpen() && fstat(file.Number(), &status) == 0 && IsReadOnly(status))
        return std::make_error_code(std::errc::permission_denied);
    if (!file.IsOpen() || !WriteAll(file, bytes) || !file.Close())
        return LastError();
    return {};
}

bool EntryExists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(FindExisting(path), ignored);
}

bool RemoveFile(const fs::path& path) {
    // As on Windows, the attribute of the file decides, not that of its folder.
    struct stat existing {};
    if (lstat(path.c_str(), &existing) != 0)
        return errno == ENOENT;
    return !IsReadOnly(existing) && Remove(Place(path));
}

bool RenameFile(const fs::path& from, const fs::path& to) {
    if (IsFolder(from))
        return false;
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // For a file system without that call: check first.
    struct stat taken {};
    return lstat(to.c_str(), &taken) != 0 && rename(from.c_str(), to.c_str()) == 0;
}

bool CreateFolder(const fs::path& path) {
    return mkdir(path.c_str(), 0777) == 0;
}

}  // namespace cvlang
