// What the two yardsticks share: reading and writing files with as few system calls as the
// task allows, and copying a tree. Linux only.
#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iterator>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace yardstick {

[[noreturn]] inline void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

/// An open file or folder.
class Descriptor {
  public:
    explicit Descriptor(int number, const char* what) : number_(number) {
        if (number_ < 0) {
            fail(what);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { ::close(number_); }

    [[nodiscard]] int get() const { return number_; }

  private:
    int number_;
};

/// The one buffer of the program; grows, never shrinks, is never cleared.
class Buffer {
  public:
    void require(std::size_t size) {
        if (size > capacity_) {
            capacity_ = std::max(size, 2 * capacity_);
            bytes_.reset();
            bytes_ = std::make_unique_for_overwrite<char[]>(capacity_);
        }
    }
    [[nodiscard]] char* data() { return bytes_.get(); }

  private:
    std::size_t capacity_ = 0;
    std::unique_ptr<char[]> bytes_;
};

struct Entry {
    std::string name;
    bool folder;
};

/// An open folder whose entries can be listed.
class Folder {
  public:
    Folder(int parent, const char* name) {
        const int number = ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        listing_ = number < 0 ? nullptr : ::fdopendir(number);
        if (listing_ == nullptr) {
            fail(name);
        }
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { ::closedir(listing_); }

    [[nodiscard]] int get() const { return ::dirfd(listing_); }

    /// The files and folders in it. Complete before anything in the folder is changed, so that a
    /// file written anew is not met twice.
    [[nodiscard]] std::vector<Entry> entries() const {
        std::vector<Entry> found;
        while (const dirent* const entry = ::readdir(listing_)) {
            const char* const name = entry->d_name;
            if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) {
                continue;
            }
            const unsigned char type =
                entry->d_type == DT_UNKNOWN ? lookUpType(name) : entry->d_type;
            if (type == DT_DIR || type == DT_REG) {
                found.push_back({name, type == DT_DIR});
            }
        }
        return found;
    }

  private:
    /// For the file systems that do not give the type in the listing.
    [[nodiscard]] unsigned char lookUpType(const char* name) const {
        struct stat status {};
        if (::fstatat(get(), name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            fail(name);
        }
        return S_ISDIR(status.st_mode) ? DT_DIR : S_ISREG(status.st_mode) ? DT_REG : DT_UNKNOWN;
    }

    DIR* listing_ = nullptr;
};

inline void writeAll(int file, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t written = ::write(file, bytes, size);
        if (written < 0) {
            fail("writing");
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
}

/// Reads a file whole into the buffer and returns its size.
inline std::size_t readWhole(int folder, const char* name, Buffer& buffer) {
    const Descriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC), name);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        fail(name);
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    buffer.require(size);
    std::size_t filled = 0;
    while (filled < size) {
        const ssize_t count = ::read(file.get(), buffer.data() + filled, size - filled);
        if (count < 0) {
            fail(name);
        }
        if (count == 0) {
            break;
        }
        filled += static_cast<std::size_t>(count);
    }
    return filled;
}

inline void writeNew(int folder, const char* name, const char* bytes, std::size_t size) {
    constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC;
    const Descriptor file(::openat(folder, name, flags, 0666), name);
    writeAll(file.get(), bytes, size);
}

/// Copies what is in one folder into another, each file with one read and one write.
inline void copyTree(const Folder& from, int to, Buffer& buffer) {
    for (const auto& [name, folder] : from.entries()) {
        if (folder) {
            if (::mkdirat(to, name.c_str(), 0777) != 0 && errno != EEXIST) {
                fail(name.c_str());
            }
            const Folder innerFrom(from.get(), name.c_str());
            const Descriptor innerTo(::openat(to, name.c_str(), O_PATH | O_CLOEXEC), name.c_str());
            copyTree(innerFrom, innerTo.get(), buffer);
        } else {
            const std::size_t size = readWhole(from.get(), name.c_str(), buffer);
            writeNew(to, name.c_str(), buffer.data(), size);
        }
    }
}

/// Makes the language folder and copies the reference folder into it.
inline void copyFolder(const char* reference, const char* language, Buffer& buffer) {
    const Folder from(AT_FDCWD, reference);
    if (::mkdir(language, 0777) != 0 && errno != EEXIST) {
        fail(language);
    }
    const Descriptor to(::open(language, O_PATH | O_DIRECTORY | O_CLOEXEC), language);
    copyTree(from, to.get(), buffer);
}

/// Whether the name ends as the name of a page file does.
inline bool isPage(const std::string& name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) {
        return false;
    }
    const char* const extension = name.c_str() + dot;
    constexpr const char* kinds[] = {".aspx", ".ascx", ".asp", ".js", ".xml"};
    return std::any_of(std::begin(kinds), std::end(kinds),
                       [&](const char* kind) { return ::strcasecmp(extension, kind) == 0; });
}

/// Runs a yardstick with its two folders and turns an exception into an exit status.
template <typename Work>
int run(int argumentCount, char** arguments, Work work) {
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

}  // namespace yardstick
