// Paths, files and folders, where Windows and Linux differ: text, attributes, letter case, links.
//
// Readers (ReadFile, EntryExists) find an entry whose name differs only in letter case. Writers and
// listings take the exact path: pass it through FindExisting first where such an entry may exist.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace cvlang {

/// The separator of the system's paths: "\" on Windows, "/" on Linux.
inline constexpr auto kSeparator =
    static_cast<char16_t>(std::filesystem::path::preferred_separator);

/// The parts joined by separators. Deliberate: an empty part leaves two separators in a row.
std::u16string JoinedPath(std::initializer_list<std::u16string_view> parts);

/// The path of a UTF-16 text; on Linux in UTF-8, in any locale. A NUL, which would end the path for
/// the system, becomes U+FFFD.
std::filesystem::path PathFromText(std::u16string_view text);

/// The UTF-16 text of a path.
std::u16string TextFromPath(const std::filesystem::path& path);

/// The path of the entry that Windows would find. In each folder the exact name is taken, otherwise
/// one that differs only in letter case. From the first missing name on, the path is unchanged. On
/// Windows the whole path is.
std::filesystem::path FindExisting(const std::filesystem::path& path);

/// The folder of the program's executable, without a separator at its end; empty when unknown.
std::filesystem::path ExecutableFolder();

/// An open folder. Its files are reached by name, which is faster than resolving the whole path for
/// each of them.
class Folder {
  public:
    /// The current folder: names in it may be whole paths.
    Folder();
    /// In a folder that does not exist, every operation fails.
    explicit Folder(const std::filesystem::path& path);
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    /// For the implementation only: an open directory on Linux, unused on Windows.
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

/// The bytes of a file. Reading another file into the same object reuses its memory.
class FileContent {
  public:
    std::string_view Bytes() const { return {buffer_.get(), size_}; }
    /// The permission bits of the file on Linux, 0 on Windows.
    unsigned Permissions() const { return permissions_; }

  private:
    friend FileStatus ReadFile(const Folder& folder, const std::filesystem::path& name,
                               FileContent& content);
    /// Allocates room for so many bytes in total, and keeps the content.
    void Reserve(std::size_t capacity);

    std::unique_ptr<char[]> buffer_;
    std::size_t capacity_ = 0;
    std::size_t size_ = 0;
    unsigned permissions_ = 0;
};

/// Reads a whole file. On failure the content is empty.
FileStatus ReadFile(const Folder& folder, const std::filesystem::path& name, FileContent& content);
inline FileStatus ReadFile(const std::filesystem::path& path, FileContent& content) {
    return ReadFile(Folder(), path, content);
}

/// Whether the bytes are flushed to the disk, so that they survive a power cut.
enum class Durability { Cached, OnDisk };

/// Replaces the content of a file. Fails for a read-only file too. After a failure a part of the
/// bytes may have been written.
std::error_code WriteFile(const std::filesystem::path& path, std::string_view bytes,
                          Durability durability = Durability::Cached);

/// Appends to a file, and creates a missing one. A read-only file is unchanged, for root too.
std::error_code AppendToFile(const std::filesystem::path& path, std::string_view bytes);

/// Whether a file or a folder of that name exists.
bool EntryExists(const std::filesystem::path& path);

/// Deletes a file, unless it is read-only. False when it exists afterwards.
bool RemoveFile(const std::filesystem::path& path);

/// Renames a file within its folder. False when the new name exists, or the file does not.
bool RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Creates one folder. False when it exists already or cannot be created.
bool CreateFolder(const std::filesystem::path& path);

/// The names of the entries directly in a folder, sorted as file managers do. On Windows junctions
/// count as links.
struct FolderListing {
    std::vector<std::filesystem::path> files;        // links to files among them
    std::vector<std::filesystem::path> linkedFiles;  // these again, and links to nothing
    std::vector<std::filesystem::path> folders;
    std::vector<std::filesystem::path> linkedFolders;
};

/// Lists the folder of exactly this name. The lists are empty when it cannot be read.
FolderListing ListFolder(const std::filesystem::path& folder);

/// Whether two of its files, or two of its folders, have names that differ only in letter case.
bool HasAlikeNames(const FolderListing& listing);

/// Whether the path is a link to a folder.
bool IsLinkedFolder(const std::filesystem::path& path);

/// The path with all links resolved; empty when it does not exist.
std::filesystem::path RealPath(const std::filesystem::path& path);

/// Whether `inner` is `outer` or below it. Both are real paths; an empty path contains nothing.
bool IsWithin(const std::filesystem::path& inner, const std::filesystem::path& outer);

/// Whether the two paths lead to the same folder.
bool IsSameFolder(const std::filesystem::path& a, const std::filesystem::path& b);

/// The name of an entry of a folder, as it is spelt on the disk if it exists.
struct EntryName {
    std::filesystem::path name;
    bool exists;
};

/// The spellings that names have in a folder, read once.
class EntryNames {
  public:
    /// A folder that was just created needs no look at the disk.
    explicit EntryNames(const std::filesystem::path& folder, bool folderIsNew = false);
    ~EntryNames();
    EntryNames(const EntryNames&) = delete;
    EntryNames& operator=(const EntryNames&) = delete;

    /// The entry of exactly this name, otherwise one that differs only in letter case.
    EntryName Find(const std::filesystem::path& name) const;

  private:
    struct Names;
    std::unique_ptr<Names> names_;  // none for a new folder
};

}  // namespace cvlang
