#include "platform/FileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <system_error>

#include "platform/Paths.h"
#include "platform/posix/DirectoryEntries.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFileMode = 0666;

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// Some file systems tell only now that the disk is full.
    bool Close() {
        const bool closed = number_ < 0 || close(number_) == 0;
        number_ = -1;
        return closed;
    }

  private:
    int number_;
};

std::error_code LastError() { return {errno, std::generic_category()}; }

int Open(const fs::path& path, int flags, mode_t mode = kNewFileMode) {
    return open(path.c_str(), flags | O_CLOEXEC, mode);
}

/// Reads up to `size` bytes; a negative number on failure. A signal does not end it.
ssize_t Read(const Descriptor& file, char* to, std::size_t size) {
    ssize_t count = 0;
    do {
        count = read(file.Number(), to, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file.Number(), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool IsReadOnly(const struct stat& status) { return (status.st_mode & S_IWUSR) == 0; }

bool IsSameFile(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

FileStatus StatusOfFailedOpen(const fs::path& path) {
    const bool noSuchName = errno == ENOENT;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
    return noSuchName && IsFolder(FindExisting(folder)) ? FileStatus::NotFound
                                                        : FileStatus::OtherError;
}

int OpenExisting(const fs::path& path) {
    const int exact = Open(path, O_RDONLY);
    if (exact >= 0 || errno != ENOENT)
        return exact;
    return Open(FindExisting(path), O_RDONLY);
}

/// Copies what is left to read; `size` is what the file is expected to hold in all.
bool CopyBytes(const Descriptor& from, const Descriptor& to, off_t size) {
    std::array<char, 65536> buffer;
    off_t copied = 0;
    for (;;) {
        const ssize_t count = Read(from, buffer.data(), buffer.size());
        if (count <= 0)
            return count == 0;
        if (!WriteAll(to, {buffer.data(), static_cast<std::size_t>(count)}))
            return false;
        copied += count;
        if (copied >= size && count < static_cast<ssize_t>(buffer.size()))
            return true;
    }
}

/// Makes way for a copy. Truncating instead would have ext4 write the file to the disk at once, a hundred times slower.
/// False when nothing must be written, because the target is the file to be copied.
bool MakeWay(const fs::path& to, const struct stat& original) {
    if (unlink(to.c_str()) == 0 || errno == ENOENT)
        return true;
    struct stat existing {};
    if (stat(to.c_str(), &existing) != 0)
        return true;
    if (IsSameFile(existing, original))
        return false;
    if (IsReadOnly(existing))
        chmod(to.c_str(), existing.st_mode | S_IWUSR);
    return true;
}

/// Where an entry belongs in a listing, or nowhere (devices, pipes and the folder's own two names).
std::vector<fs::path>* ListFor(const dirent& entry, DIR* folder, FolderListing& listing) {
    const std::string_view name = entry.d_name;
    if (name == "." || name == "..")
        return nullptr;
    if (entry.d_type == DT_REG)
        return &listing.files;
    if (entry.d_type == DT_DIR)
        return &listing.folders;
    struct stat status {};
    if (fstatat(dirfd(folder), entry.d_name, &status, 0) != 0)
        return nullptr;
    if (S_ISREG(status.st_mode))
        return &listing.files;
    if (!S_ISDIR(status.st_mode))
        return nullptr;
    return entry.d_type == DT_LNK ? &listing.linkedFolders : &listing.folders;
}

bool PrecedesInDirectoryWindow(const fs::path& a, const fs::path& b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    const std::string& left = a.native();
    const std::string& right = b.native();
    const auto [inLeft, inRight] =
        std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                      [lower](char x, char y) { return lower(x) == lower(y); });
    if (inLeft == left.end() || inRight == right.end())
        return inLeft == left.end() && (inRight != right.end() || left < right);
    return static_cast<unsigned char>(lower(*inLeft)) < static_cast<unsigned char>(lower(*inRight));
}

}  // namespace

FileStatus ReadFile(const fs::path& path, FileContent& content) {
    content.size_ = 0;
    const Descriptor file(OpenExisting(path));
    struct stat status {};
    if (!file.IsOpen())
        return StatusOfFailedOpen(path);
    if (fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return FileStatus::OtherError;
    content.hasAttributes_ = IsReadOnly(status);
    // One byte more than expected: a shorter answer then says that this was all.
    std::size_t capacity = static_cast<std::size_t>(status.st_size) + 1;
    for (;;) {
        if (content.buffer_.size() < capacity)
            content.buffer_.resize(capacity);
        const std::size_t room = content.buffer_.size() - content.size_;
        const ssize_t count = Read(file, content.buffer_.data() + content.size_, room);
        if (count < 0) {
            content.size_ = 0;
            return FileStatus::OtherError;
        }
        content.size_ += static_cast<std::size_t>(count);
        if (static_cast<std::size_t>(count) < room)
            return FileStatus::Okay;
        capacity = content.buffer_.size() * 2;
    }
}

bool WriteFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(Open(path, O_WRONLY | O_CREAT | O_TRUNC));
    if (!file.IsOpen())
        return false;
    const bool written = WriteAll(file, bytes);
    return file.Close() && written;
}

std::error_code AppendToFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(Open(path, O_WRONLY | O_CREAT | O_APPEND));
    if (!file.IsOpen() || !WriteAll(file, bytes) || !file.Close())
        return LastError();
    return {};
}

bool EntryExists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(FindExisting(path), ignored);
}

bool RemoveFile(const fs::path& path) { return unlink(path.c_str()) == 0 || errno == ENOENT; }

bool RenameFile(const fs::path& from, const fs::path& to) {
    if (IsFolder(from))
        return false;
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system without that call: a look beforehand is the next best.
    struct stat taken {};
    return lstat(to.c_str(), &taken) != 0 && rename(from.c_str(), to.c_str()) == 0;
}

bool CreateFolder(const fs::path& path) { return mkdir(path.c_str(), 0777) == 0; }

void ResetAttributes(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) == 0 && IsReadOnly(status))
        chmod(path.c_str(), status.st_mode | S_IWUSR);
}

bool CopyOneFile(const fs::path& from, const fs::path& to, CopiedAttributes attributes,
                 bool overwrites) {
    const Descriptor source(Open(from, O_RDONLY));
    struct stat original {};
    if (!source.IsOpen() || fstat(source.Number(), &original) != 0)
        return false;
    if (overwrites && !MakeWay(to, original))
        return true;
    const mode_t mode = attributes == CopiedAttributes::Archive ? original.st_mode | S_IWUSR
                                                                : original.st_mode;
    Descriptor target(Open(to, O_WRONLY | O_CREAT | O_TRUNC, mode & 0777));
    if (!target.IsOpen())
        return false;
    const bool copied = CopyBytes(source, target, original.st_size);
    if (target.Close() && copied)
        return true;
    unlink(to.c_str());
    return false;
}

FolderListing ListFolder(const fs::path& folder) {
    FolderListing listing;
    const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(FindExisting(folder).c_str()), closedir);
    if (open == nullptr)
        return listing;
    while (const dirent* entry = readdir(open.get())) {
        if (auto* list = ListFor(*entry, open.get(), listing))
            list->emplace_back(entry->d_name);
    }
    for (auto* list : {&listing.files, &listing.folders, &listing.linkedFolders})
        std::sort(list->begin(), list->end(), PrecedesInDirectoryWindow);
    return listing;
}

struct TargetNames::Names {
    DirectoryEntries entries;
};

TargetNames::TargetNames(const fs::path& folder, bool folderIsNew) : folder_(folder) {
    if (!folderIsNew)
        names_ = std::make_unique<Names>(Names{DirectoryEntries(folder)});
}

TargetNames::~TargetNames() = default;

TargetNames::Target TargetNames::Find(const fs::path& name) const {
    const auto existing = names_ ? names_->entries.Find(name.native()) : std::nullopt;
    return {folder_ / existing.value_or(name.native()), existing.has_value()};
}

}  // namespace cvlang
