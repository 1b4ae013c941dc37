// Files and folders, as far as Windows and Linux differ about them: attributes, letter case, links.
//
// What reads (ReadFile, EntryExists) finds an entry whose name differs only in letter
// case. What writes or lists takes the path exactly; pass it through FindExisting first where an
// entry may exist under another spelling.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace cvlang {

/// A folder that many files are read from or written to. They are then reached by their names
/// alone, which spares the system going through the whole path each time.
class Folder {
  public:
    /// The folder need not exist: what is done in it then fails.
    explicit Folder(const std::filesystem::path& path);
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    /// For the implementation alone: an open directory on Linux, unused on Windows.
    int Descriptor() const { return descriptor_; }

  private:
    std::filesystem::path path_;
    int descriptor_ = -1;
};

enum class FileStatus {
    Okay,
    NotFound,   // the folder exists, the file does not
    OtherError  // no such folder, no permission, not a file, ...
};

/// A file's bytes. Reading another file into the same object uses its memory again.
class FileContent {
  public:
    std::string_view Bytes() const { return {buffer_.get(), size_}; }
    /// The permission bits of the file on Linux, 0 on Windows.
    unsigned Permissions() const { return permissions_; }

  private:
    friend FileStatus ReadFile(const Folder& folder, const std::filesystem::path& name,
                               FileContent& content);
    /// Makes room for so many bytes in all; what was read so far stays.
    void Reserve(std::size_t capacity);

    std::unique_ptr<char[]> buffer_;
    std::size_t capacity_ = 0;
    std::size_t size_ = 0;
    unsigned permissions_ = 0;
};

/// Reads a whole file. On failure the content is empty.
FileStatus ReadFile(const Folder& folder, const std::filesystem::path& name, FileContent& content);
FileStatus ReadFile(const std::filesystem::path& path, FileContent& content);

/// Whether what was written has reached the disk when writing ends, so that it outlives a power
/// cut.
enum class Durability { Cached, OnDisk };

/// Makes the bytes the file's whole content. False on failure, also for a read-only file; what the
/// disk still took then stays.
bool WriteFile(const std::filesystem::path& path, std::string_view bytes,
               Durability durability = Durability::Cached);

/// Writes at the end of a file, creating it when it is missing. A read-only file stays as it is,
/// for root too.
std::error_code AppendToFile(const std::filesystem::path& path, std::string_view bytes);

/// Whether a file or a folder of that name exists.
bool EntryExists(const std::filesystem::path& path);

/// Deletes a file; a read-only one stays. False when it is still there afterwards.
bool RemoveFile(const std::filesystem::path& path);

/// Gives a file another name in the same folder. False when that name is taken, or when there is no
/// such file.
bool RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Creates one folder. False when it exists already or cannot be created.
bool CreateFolder(const std::filesystem::path& path);

}  // namespace cvlang
