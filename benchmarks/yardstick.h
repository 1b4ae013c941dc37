// What the two yardsticks share: reading and writing files with as few system calls as the task
// allows, and copying a tree. Linux only.
#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/posix/Descriptor.h"
#include "text/Strings.h"

namespace cvlang::yardstick {

inline void Require(bool succeeded, const std::string& what) {
    if (!succeeded)
        throw std::system_error(errno, std::generic_category(), what);
}

/// The one buffer of the program; grows, never shrinks, is never cleared.
class Buffer {
  public:
    char* Reserve(std::size_t size) {
        if (size > capacity_) {
            capacity_ = std::max(size, 2 * capacity_);
            bytes_.reset();
            bytes_ = std::make_unique_for_overwrite<char[]>(capacity_);
        }
        return bytes_.get();
    }

  private:
    std::size_t capacity_ = 0;
    std::unique_ptr<char[]> bytes_;
};

struct Entry {
    std::string name;
    bool isFolder;
};

/// An open folder whose entries can be listed.
class ListedFolder {
  public:
    ListedFolder(int parent, const std::string& name) {
        const int number = openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        listing_ = number < 0 ? nullptr : fdopendir(number);
        Require(listing_ != nullptr, name);
    }
    ListedFolder(const ListedFolder&) = delete;
    ListedFolder& operator=(const ListedFolder&) = delete;
    ~ListedFolder() { closedir(listing_); }

    int Number() const { return dirfd(listing_); }

    /// The files and folders in it. Complete before anything in the folder is changed, so that a
    /// replaced file is not listed twice.
    std::vector<Entry> Entries() const {
        std::vector<Entry> found;
        while (const dirent* const entry = readdir(listing_)) {
            const std::string_view name = entry->d_name;
            if (name == "." || name == "..")
                continue;
            const unsigned char type =
                entry->d_type == DT_UNKNOWN ? LookUpType(entry->d_name) : entry->d_type;
            if (type == DT_DIR || type == DT_REG)
                found.push_back({std::string(name), type == DT_DIR});
        }
        return found;
    }

  private:
    /// For the file systems that do not give the type in the listing.
    unsigned char LookUpType(const char* name) const {
        struct stat status {};
        Require(fstatat(Number(), name, &status, AT_SYMLINK_NOFOLLOW) == 0, name);
        return S_ISDIR(status.st_mode) ? DT_DIR : S_ISREG(status.st_mode) ? DT_REG : DT_UNKNOWN;
    }

    DIR* listing_ = nullptr;
};

/// Reads a file whole into the buffer.
inline std::string_view ReadWhole(int folder, const std::string& name, Buffer& buffer) {
    const Descriptor file(openat(folder, name.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    Require(file.IsOpen() && fstat(file.Number(), &status) == 0, name);
    const auto size = static_cast<std::size_t>(status.st_size);
    char* const bytes = buffer.Reserve(size);
    std::size_t filled = 0;
    for (ssize_t count = 1; filled < size && count > 0; filled += static_cast<std::size_t>(count)) {
        count = Read(file, bytes + filled, size - filled);
        Require(count >= 0, name);
    }
    return {bytes, filled};
}

inline void WriteNew(int folder, const std::string& name, std::string_view bytes) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    const Descriptor file(openat(folder, name.c_str(), kFlags, kNewFileMode));
    Require(file.IsOpen() && WriteAll(file, bytes), name);
}

/// Copies what is in one folder into another, each file with one read and one write.
inline void CopyTree(const ListedFolder& from, int to, Buffer& buffer) {
    for (const auto& [name, isFolder] : from.Entries()) {
        if (isFolder) {
            Require(mkdirat(to, name.c_str(), 0777) == 0 || errno == EEXIST, name);
            const Descriptor innerTo(openat(to, name.c_str(), O_PATH | O_CLOEXEC));
            CopyTree(ListedFolder(from.Number(), name), innerTo.Number(), buffer);
        } else {
            WriteNew(to, name, ReadWhole(from.Number(), name, buffer));
        }
    }
}

/// Creates the language folder and copies the reference folder into it.
inline void CopyFolder(const char* reference, const char* language, Buffer& buffer) {
    const ListedFolder from(AT_FDCWD, reference);
    Require(mkdir(language, 0777) == 0 || errno == EEXIST, language);
    const Descriptor to(open(language, O_PATH | O_DIRECTORY | O_CLOEXEC));
    Require(to.IsOpen(), language);
    CopyTree(from, to.Number(), buffer);
}

/// Whether the name ends as the name of a page file does.
inline bool IsPage(std::string_view name) {
    constexpr std::string_view kEndings[] = {".aspx", ".ascx", ".asp", ".js", ".xml"};
    return std::any_of(std::begin(kEndings), std::end(kEndings), [name](std::string_view ending) {
        return EndsWithIgnoringCase(name, ending);
    });
}

/// Runs a yardstick with its two folders and turns an exception into an exit status.
template <typename Work>
int Run(int argumentCount, char** arguments, Work work) {
    if (argumentCount != 3) {
        std::fprintf(stderr, "usage: %s SYS-FOLDER LANGUAGE-FOLDER\n", arguments[0]);
        return 2;
    }
    try {
        Buffer buffer;
        work(arguments[1], arguments[2], buffer);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", arguments[0], error.what());
        return 1;
    }
    return 0;
}

}  // namespace cvlang::yardstick
