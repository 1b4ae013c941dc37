// Open files and where they lie, for the implementations beside this header.
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
    /// Some file systems tell only now that the disk is full.
    bool Close();
    void Reset(int number) {
        Close();
        number_ = number;
    }
    /// Leaves closing to the caller.
    int Release() { return std::exchange(number_, -1); }

  private:
    int number_;
};

/// A file's place: a directory and the name in it, or a whole path.
struct Place {
    Place(const Folder& folder, const std::filesystem::path& file)
        : directory(folder.Descriptor()), name(file.c_str()) {}
    explicit Place(const std::filesystem::path& path) : directory(AT_FDCWD), name(path.c_str()) {}

    int directory;
    const char* name;
};

inline constexpr mode_t kNewFileMode = 0666;

/// Repeats a call of the system until no signal interrupts it.
template <typename Call>
auto Uninterrupted(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// A descriptor, or -1. The mode is that of a file that is created.
int Open(const Place& place, int flags, mode_t mode = kNewFileMode);

/// Deletes a file. False when it is still there afterwards.
bool Remove(const Place& place);

/// Reads up to `size` bytes, 0 at the end; a negative number on failure.
ssize_t Read(const Descriptor& file, char* to, std::size_t size);

bool WriteAll(const Descriptor& file, std::string_view bytes);

inline bool IsReadOnly(const struct stat& status) {
    return (status.st_mode & S_IWUSR) == 0;
}

}  // namespace cvlang
