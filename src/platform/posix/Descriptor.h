// Open files and their places, for the files in this folder only.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/FileSystem.h"

namespace cvlang {

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// False on failure: some file systems report a full disk only now.
    bool Close();
    /// Returns the descriptor, which the caller must close.
    int Release() { return std::exchange(number_, -1); }

  private:
    int number_;
};

/// The place of a file: an open directory and a name in it, or a whole path.
struct Place {
    Place(const Folder& folder, const std::filesystem::path& file)
        : directory(folder.Descriptor()), name(file.c_str()) {}
    explicit Place(const std::filesystem::path& path) : directory(AT_FDCWD), name(path.c_str()) {}

    int directory;
    const char* name;
};

inline constexpr mode_t kNewFileMode = 0666;

/// Repeats a system call until no signal interrupts it.
template <typename Call>
auto Uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Opens a file: a descriptor, or -1. `mode` is for a file that is created.
int Open(const Place& place, int flags, mode_t mode = kNewFileMode);

/// Deletes a file. False when it exists afterwards.
bool Remove(const Place& place);

/// Reads up to `size` bytes: 0 at the end, negative on failure.
ssize_t Read(const Descriptor& file, char* to, std::size_t size);

bool WriteAll(const Descriptor& file, std::string_view bytes);

inline bool IsReadOnly(const struct stat& status) {
    return (status.st_mode & S_IWUSR) == 0;
}

}  // namespace cvlang
