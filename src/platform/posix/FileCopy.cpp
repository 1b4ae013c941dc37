#include "platform/FileCopy.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/posix/Descriptor.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kModeBits = 07777;

/// The permissions that a file gets: a new one, and an existing one that is written over.
struct TargetMode {
    mode_t ofNew;
    mode_t cleared;
    mode_t added;
};

TargetMode ModeOfCopy(mode_t original, CopiedAttributes attributes) {
    const mode_t mode = original | (attributes == CopiedAttributes::Archive ? S_IWUSR : 0U);
    const bool readOnly = (mode & S_IWUSR) == 0;
    return {mode & 0777, readOnly ? 0222U : 0U, readOnly ? 0U : mode_t{S_IWUSR}};
}

/// A page is writable at the end, after its copy was perhaps read-only.
TargetMode ModeOfPage(mode_t original, CopiedAttributes attributes) {
    TargetMode mode = ModeOfCopy(original, attributes);
    mode.ofNew |= S_IWUSR;
    mode.added |= S_IWUSR;
    return mode;
}

/// Never through a link, and only where no other name is concerned.
bool MakeWritable(const Place& place) {
    struct stat existing {};
    return fstatat(place.directory, place.name, &existing, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISREG(existing.st_mode) && existing.st_nlink == 1 && IsReadOnly(existing) &&
           fchmodat(place.directory, place.name, (existing.st_mode | S_IWUSR) & kModeBits,
                    AT_SYMLINK_NOFOLLOW) == 0;
}

/// A file of the target folder while it is written.
class TargetFile {
  public:
    TargetFile(const Place& place, bool exists, const TargetMode& mode)
        : place_(place), file_(OpenAny(exists, mode)) {}

    bool IsOpen() const { return file_.IsOpen(); }

    bool Write(std::string_view bytes) {
        size_ += static_cast<off_t>(bytes.size());
        return WriteAll(file_, bytes);
    }

    /// Closes the file and removes it unless it is complete.
    bool Finish(bool complete) {
        if (!IsOpen())
            return false;
        // Only now: ext4 writes a file that was emptied first to the disk at once.
        complete = complete && (size_ >= existingSize_ || ftruncate(file_.Number(), size_) == 0);
        if (file_.Close() && complete)
            return true;
        Remove(place_);
        return false;
    }

  private:
    int OpenAny(bool exists, const TargetMode& mode) {
        const int file = exists ? OpenExisting(mode) : Create(mode);
        if (file >= 0)
            return file;
        if (!exists)  // or it appeared meanwhile
            return errno == EEXIST ? OpenExisting(mode) : -1;
        Remove(place_);
        return Create(mode);
    }

    /// Never through a link that somebody puts there.
    int Create(const TargetMode& mode) const {
        return Open(place_, O_WRONLY | O_CREAT | O_EXCL, mode.ofNew);
    }

    /// Opens an existing file to be written over, which is much cheaper than deleting and creating
    /// it. -1 when something outside the folder, or a file that cannot be made writable, would
    /// change.
    int OpenExisting(const TargetMode& mode) {
        int number = OpenNoLink();
        if (number < 0 && errno == EACCES && MakeWritable(place_))
            number = OpenNoLink();
        Descriptor file(number);
        struct stat existing {};
        if (!file.IsOpen() || fstat(file.Number(), &existing) != 0 || !S_ISREG(existing.st_mode) ||
            existing.st_nlink != 1)
            return -1;
        const mode_t wanted = (existing.st_mode & ~mode.cleared) | mode.added;
        if (wanted != existing.st_mode && fchmod(file.Number(), wanted & kModeBits) != 0)
            return -1;
        existingSize_ = existing.st_size;
        return file.Release();
    }

    int OpenNoLink() const { return Open(place_, O_WRONLY | O_NOFOLLOW | O_NONBLOCK); }

    const Place& place_;
    off_t existingSize_ = 0;
    off_t size_ = 0;
    Descriptor file_;
};

/// Copies what is left to read; `size` is what the file is expected to hold in all.
bool CopyBytes(const Descriptor& from, TargetFile& to, off_t size) {
    std::array<char, 65536> buffer;
    off_t copied = 0;
    for (;;) {
        const ssize_t count = Read(from, buffer.data(), buffer.size());
        if (count <= 0)
            return count == 0;
        if (!to.Write({buffer.data(), static_cast<std::size_t>(count)}))
            return false;
        copied += count;
        if (copied >= size && count < static_cast<ssize_t>(buffer.size()))
            return true;
    }
}

bool IsSameFile(const Place& place, const struct stat& other) {
    struct stat status {};
    return fstatat(place.directory, place.name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           status.st_dev == other.st_dev && status.st_ino == other.st_ino;
}

}  // namespace

bool CopyOneFile(const CopiedFile& file) {
    const Place place(file.to, file.target.name);
    const Descriptor source(Open({file.from, file.name}, O_RDONLY | O_NONBLOCK));
    struct stat original {};
    if (!source.IsOpen() || fstat(source.Number(), &original) != 0 || !S_ISREG(original.st_mode))
        return false;
    if (file.target.exists && IsSameFile(place, original))
        return true;
    TargetFile copy(place, file.target.exists, ModeOfCopy(original.st_mode, file.attributes));
    return copy.Finish(copy.IsOpen() && CopyBytes(source, copy, original.st_size));
}

bool WritePage(const CopiedFile& file, std::string_view bytes, const FileContent& original) {
    const Place place(file.to, file.target.name);
    const TargetMode mode = ModeOfPage(original.Permissions(), file.attributes);
    const auto write = [&](bool exists) {
        TargetFile page(place, exists, mode);
        return page.Finish(page.IsOpen() && page.Write(bytes));
    };
    // Where writing over fails, deleting may give the room for a new file.
    return write(file.target.exists) || (file.target.exists && write(false));
}

void ResetAttributes(const Folder& folder, const fs::path& name) {
    MakeWritable({folder, name});
}

}  // namespace cvlang
