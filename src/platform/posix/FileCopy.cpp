#include "platform/FileCopy.h"

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

}  // namespace

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
