#include "platform/FileCopy.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryEntries.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

bool IsSameFile(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
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

/// Opens an existing file to be written over, without emptying it: ext4 writes a file that was
/// emptied to the disk at once, and hands out new files slowly just after others were deleted. -1
/// when a new file has to take its place, because something outside the folder would be written to.
int OpenOver(const Place& to, const struct stat& existing) {
    if (!S_ISREG(existing.st_mode) || existing.st_nlink != 1)
        return -1;
    if (IsReadOnly(existing))
        fchmodat(to.directory, to.name, existing.st_mode | S_IWUSR, 0);
    return Open(to, O_WRONLY | O_NOFOLLOW);
}

/// Cuts off what an overwritten file held behind its new content, and makes it read-only or not.
bool FinishOver(const Descriptor& copy, const struct stat& existing, bool readOnly) {
    const off_t size = lseek(copy.Number(), 0, SEEK_CUR);
    if (readOnly)
        fchmod(copy.Number(), existing.st_mode & ~static_cast<mode_t>(0222));
    return existing.st_size <= size || ftruncate(copy.Number(), size) == 0;
}

}  // namespace

bool CopyOneFile(const Folder& from, const fs::path& name, const Folder& to,
                 const TargetName& target, CopiedAttributes attributes) {
    const Place place(to, target.name);
    const Descriptor source(Open({from, name}, O_RDONLY));
    struct stat original {};
    if (!source.IsOpen() || fstat(source.Number(), &original) != 0)
        return false;
    const mode_t added = attributes == CopiedAttributes::Archive ? S_IWUSR : 0;
    const mode_t mode = (original.st_mode | added) & 0777;

    struct stat existing {};
    const bool exists =
        target.exists && fstatat(place.directory, place.name, &existing, AT_SYMLINK_NOFOLLOW) == 0;
    if (exists && IsSameFile(existing, original))
        return true;
    const int overwritten = exists ? OpenOver(place, existing) : -1;
    if (exists && overwritten < 0)
        Remove(place);
    Descriptor copy(overwritten >= 0 ? overwritten
                                     : Open(place, O_WRONLY | O_CREAT | O_TRUNC, mode));
    if (!copy.IsOpen())
        return false;
    bool copied = CopyBytes(source, copy, original.st_size);
    if (overwritten >= 0)
        copied = FinishOver(copy, existing, (mode & S_IWUSR) == 0) && copied;
    if (copy.Close() && copied)
        return true;
    Remove(place);
    return false;
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
