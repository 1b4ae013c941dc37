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

std::error_code LastError() {
    return {errno, std::generic_category()};
}

/// A file's place: a directory and the name in it, or a whole path.
struct Place {
    Place(const Folder& folder, const fs::path& file)
        : directory(folder.Descriptor()), name(file.c_str()) {}
    explicit Place(const fs::path& path) : directory(AT_FDCWD), name(path.c_str()) {}

    int directory;
    const char* name;
};

int Open(const Place& place, int flags, mode_t mode = kNewFileMode) {
    return openat(place.directory, place.name, flags | O_CLOEXEC, mode);
}

bool Remove(const Place& place) {
    return unlinkat(place.directory, place.name, 0) == 0 || errno == ENOENT;
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

bool IsReadOnly(const struct stat& status) {
    return (status.st_mode & S_IWUSR) == 0;
}

bool IsSameFile(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
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

bool Write(const Place& place, std::string_view bytes) {
    Descriptor file(Open(place, O_WRONLY | O_CREAT | O_TRUNC));
    if (!file.IsOpen())
        return false;
    const bool written = WriteAll(file, bytes);
    return file.Close() && written;
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

/// Makes way for a copy. Truncating instead would have ext4 write the file to the disk at once, a
/// hundred times slower. False when nothing must be written, because the target is the file to be
/// copied.
bool MakeWay(const Place& to, const struct stat& original) {
    struct stat existing {};
    if (Remove(to) || fstatat(to.directory, to.name, &existing, 0) != 0)
        return true;
    if (IsSameFile(existing, original))
        return false;
    if (IsReadOnly(existing))
        fchmodat(to.directory, to.name, existing.st_mode | S_IWUSR, 0);
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
    content.hasAttributes_ = IsReadOnly(status);
    // One byte more than expected: a shorter answer then says that this was all.
    content.Reserve(static_cast<std::size_t>(status.st_size) + 1);
    for (;;) {
        const std::size_t room = content.capacity_ - content.size_;
        const ssize_t count = Read(file, content.buffer_.get() + content.size_, room);
        if (count < 0) {
            content.size_ = 0;
            return FileStatus::OtherError;
        }
        content.size_ += static_cast<std::size_t>(count);
        if (static_cast<std::size_t>(count) < room)
            return FileStatus::Okay;
        content.Reserve(content.capacity_ * 2);
    }
}

FileStatus ReadFile(const fs::path& path, FileContent& content) {
    return ReadFile(Folder(FindExisting(FolderOf(path))), path.filename(), content);
}

bool WriteFile(const Folder& folder, const fs::path& name, std::string_view bytes) {
    return Write({folder, name}, bytes);
}

bool WriteFile(const fs::path& path, std::string_view bytes) {
    return Write(Place(path), bytes);
}

std::error_code AppendToFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(Open(Place(path), O_WRONLY | O_CREAT | O_APPEND));
    if (!file.IsOpen() || !WriteAll(file, bytes) || !file.Close())
        return LastError();
    return {};
}

bool EntryExists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(FindExisting(path), ignored);
}

bool RemoveFile(const Folder& folder, const fs::path& name) {
    return Remove({folder, name});
}

bool RemoveFile(const fs::path& path) {
    return Remove(Place(path));
}

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

bool CreateFolder(const fs::path& path) {
    return mkdir(path.c_str(), 0777) == 0;
}

void ResetAttributes(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) == 0 && IsReadOnly(status))
        chmod(path.c_str(), status.st_mode | S_IWUSR);
}

bool CopyOneFile(const Folder& from, const fs::path& name, const Folder& to,
                 const TargetName& target, CopiedAttributes attributes) {
    const Place place(to, target.name);
    const Descriptor source(Open({from, name}, O_RDONLY));
    struct stat original {};
    if (!source.IsOpen() || fstat(source.Number(), &original) != 0)
        return false;
    if (target.exists && !MakeWay(place, original))
        return true;
    const mode_t added = attributes == CopiedAttributes::Archive ? S_IWUSR : 0;
    Descriptor copy(Open(place, O_WRONLY | O_CREAT | O_TRUNC, (original.st_mode | added) & 0777));
    if (!copy.IsOpen())
        return false;
    const bool copied = CopyBytes(source, copy, original.st_size);
    if (copy.Close() && copied)
        return true;
    Remove(place);
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

TargetNames::TargetNames(const fs::path& folder, bool folderIsNew) {
    if (!folderIsNew)
        names_ = std::make_unique<Names>(Names{DirectoryEntries(folder)});
}

TargetNames::~TargetNames() = default;

TargetName TargetNames::Find(const fs::path& name) const {
    const auto existing = names_ ? names_->entries.Find(name.native()) : std::nullopt;
    return {existing ? fs::path(*existing) : name, existing.has_value()};
}

}  // namespace cvlang
