#include "platform/FileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "platform/Ansi.h"
#include "platform/posix/Descriptor.h"
#include "text/Strings.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

bool IsOnDisk(const fs::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool ParentExists(const fs::path& path) {
    return IsFolder(FindExisting(path.has_parent_path() ? path.parent_path() : "."));
}

int OpenExisting(const Folder& folder, const fs::path& name) {
    const int exact = Open({folder, name}, O_RDONLY);
    if (exact >= 0 || errno != ENOENT)
        return exact;
    return Open(Place(FindExisting(folder.Path() / name)), O_RDONLY);
}

/// Opens a file to be replaced. A read-only file is refused, for root too.
int OpenForWriting(const Place& place) {
    const int created = Open(place, O_WRONLY | O_CREAT | O_EXCL);
    struct stat existing {};
    if (created >= 0 || errno != EEXIST || fstatat(place.directory, place.name, &existing, 0) != 0)
        return created;
    errno = EACCES;
    return IsReadOnly(existing) ? -1 : Open(place, O_WRONLY | O_TRUNC);
}

std::error_code LastError() {
    return {errno, std::generic_category()};
}

/// Flushes the file. False when the disk fails; a file system without flushing is no failure.
bool Flush(const Descriptor& file) {
    return Uninterrupted([&] { return fsync(file.Number()); }) == 0 || errno == EINVAL;
}

/// Calls `use` with each entry and its open folder.
template <typename Use>
void ForEachEntry(const fs::path& folder, const Use& use) {
    // Not directory_iterator, which ends the program when memory runs out.
    const std::unique_ptr<DIR, int (*)(DIR*)> open(opendir(folder.c_str()), closedir);
    while (const dirent* entry = open == nullptr ? nullptr : readdir(open.get()))
        use(*entry, open.get());
}

/// Adds an entry to a listing; leaves out devices, pipes, "." and "..".
void Add(const dirent& entry, DIR* folder, FolderListing& listing) {
    const std::string_view name = entry.d_name;
    if (name == "." || name == "..")
        return;
    unsigned char type = entry.d_type;
    bool isLink = false;
    if (type != DT_REG &&
        type != DT_DIR) {  // a link, or a file system without types in its listings
        struct stat status {};
        if (fstatat(dirfd(folder), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return;
        isLink = S_ISLNK(status.st_mode);
        if (isLink && fstatat(dirfd(folder), entry.d_name, &status, 0) != 0)
            listing.linkedFiles.emplace_back(name);
        type = static_cast<unsigned char>(IFTODT(status.st_mode));
    }
    if (type == DT_DIR) {
        (isLink ? listing.linkedFolders : listing.folders).emplace_back(name);
    } else if (type == DT_REG) {
        listing.files.emplace_back(name);
        if (isLink)
            listing.linkedFiles.emplace_back(name);
    }
}

bool PrecedesInDirectoryWindow(const fs::path& a, const fs::path& b) {
    const std::string& left = a.native();
    const std::string& right = b.native();
    const auto [inLeft, inRight] =
        std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                      [](char x, char y) { return LowerAscii(x) == LowerAscii(y); });
    if (inLeft == left.end() || inRight == right.end())
        return inLeft == left.end() && (inRight != right.end() || left < right);
    return static_cast<unsigned char>(LowerAscii(*inLeft)) <
           static_cast<unsigned char>(LowerAscii(*inRight));
}

std::u16string Capitals(const std::string& name) {
    return ToUpper(Utf8ToUtf16(name));
}

}  // namespace

fs::path PathFromText(std::u16string_view text) {
    std::u16string path(text);
    std::replace(path.begin(), path.end(), u'\0', u'\uFFFD');
    return Utf16ToUtf8(path);
}

std::u16string TextFromPath(const fs::path& path) {
    return Utf8ToUtf16(path.native());
}

fs::path FindExisting(const fs::path& path) {
    if (IsOnDisk(path))
        return path;
    fs::path found;
    bool missing = false;
    for (const fs::path& part : path) {
        if (!missing && !IsOnDisk(found / part)) {
            const EntryName entry = EntryNames(found.empty() ? "." : found).Find(part);
            missing = !entry.exists;
            found /= entry.name;
        } else {
            found /= part;
        }
    }
    return found;
}

fs::path ExecutableFolder() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

Folder::Folder() : descriptor_(AT_FDCWD) {}

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
    if (!file.IsOpen()) {
        const bool isMissing = errno == ENOENT && ParentExists(folder.Path() / name);
        return isMissing ? FileStatus::NotFound : FileStatus::OtherError;
    }
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

std::error_code WriteFile(const fs::path& path, std::string_view bytes, Durability durability) {
    Descriptor file(OpenForWriting(Place(path)));
    if (file.IsOpen() && WriteAll(file, bytes) &&
        (durability == Durability::Cached || Flush(file)) && file.Close())
        return {};
    return LastError();
}

std::error_code AppendToFile(const fs::path& path, std::string_view bytes) {
    Descriptor file(Open(Place(path), O_WRONLY | O_CREAT | O_APPEND));
    struct stat status {};
    if (file.IsOpen() && fstat(file.Number(), &status) == 0 && IsReadOnly(status))
        return std::make_error_code(std::errc::permission_denied);
    if (file.IsOpen() && WriteAll(file, bytes) && file.Close())
        return {};
    return LastError();
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

FolderListing ListFolder(const fs::path& folder) {
    FolderListing listing;
    ForEachEntry(folder, [&listing](const dirent& entry, DIR* open) { Add(entry, open, listing); });
    for (auto* list :
         {&listing.files, &listing.linkedFiles, &listing.folders, &listing.linkedFolders})
        std::sort(list->begin(), list->end(), PrecedesInDirectoryWindow);
    return listing;
}

bool HasAlikeNames(const FolderListing& listing) {
    const auto areAlike = [](const std::vector<fs::path>& names) {
        std::unordered_set<std::u16string> capitals;
        for (const fs::path& name : names)
            capitals.insert(Capitals(name.native()));
        return capitals.size() < names.size();
    };
    return areAlike(listing.files) || areAlike(listing.folders);
}

bool IsLinkedFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_symlink(fs::symlink_status(path, ignored)) && fs::is_directory(path, ignored);
}

fs::path RealPath(const fs::path& path) {
    std::error_code ignored;
    return fs::canonical(path, ignored);
}

struct EntryNames::Names {
    // Sorted, so that of two names that differ only in case the same one is always found.
    std::set<std::string> exact;
    std::unordered_map<std::u16string, std::string> byCapitals;
};

EntryNames::EntryNames(const fs::path& folder, bool folderIsNew) {
    if (folderIsNew)
        return;
    names_ = std::make_unique<Names>();
    ForEachEntry(folder, [this](const dirent& entry, DIR*) { names_->exact.insert(entry.d_name); });
}

EntryNames::~EntryNames() = default;

EntryName EntryNames::Find(const fs::path& name) const {
    if (names_ == nullptr || names_->exact.contains(name.native()))
        return {name, names_ != nullptr};
    if (names_->byCapitals.empty()) {
        for (const std::string& existing : names_->exact)
            names_->byCapitals.emplace(Capitals(existing), existing);
    }
    const auto found = names_->byCapitals.find(Capitals(name.native()));
    const bool exists = found != names_->byCapitals.end();
    return {exists ? fs::path(found->second) : name, exists};
}

}  // namespace cvlang
