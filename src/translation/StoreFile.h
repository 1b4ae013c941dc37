// The files of the translation store: UTF-16 little-endian after the byte-order mark FF FE, with
// CR LF line ends.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "config/Logs.h"
#include "platform/FileSystem.h"

namespace cvlang {

/// The text of a file, read by the constructor.
class Utf16File {
  public:
    Utf16File() = default;
    /// Reads a file; the text is empty on failure.
    explicit Utf16File(const std::filesystem::path& path) : status_(ReadFile(path, content_)) {}

    FileStatus Status() const { return status_; }
    /// The text without byte-order mark and without an odd last byte. Valid as long as the object.
    std::u16string_view Text() const;
    /// Whether there is an odd last byte, after which nothing can be appended.
    bool EndsWithinCharacter() const { return content_.Bytes().size() % 2 != 0; }

  private:
    FileContent content_;
    FileStatus status_ = FileStatus::NotFound;
};

/// Replaces the content of a file by a byte-order mark and the text, and flushes it to the disk,
/// because the file that it replaces is deleted next. False on failure.
bool WriteUtf16File(const std::filesystem::path& path, std::u16string text);

/// Appends the bytes to a file, and creates a missing one. On failure the file is as it was, and a
/// filesystem_error with its path and the reason is thrown.
void AppendOrThrow(const std::filesystem::path& path, std::string_view bytes);

/// The same with a text, after a byte-order mark in a new file. An odd last byte is dropped.
void AppendTextOrThrow(const std::filesystem::path& path, std::u16string_view text);

/// A file of the store and its temporary file.
struct RewrittenFile {
    std::filesystem::path file;
    std::filesystem::path copy;
};

/// In a file of lines "key TAB value", gives every line with the key the new value, or appends such
/// a line. Writes the changed copy, deletes the file, renames the copy. A missing file is created
/// with this one line. A file that cannot be opened is logged as "Unable to update token".
void RewriteKeyedLine(const RewrittenFile& rewritten, std::u16string_view key,
                      std::u16string_view value, const Logs& logs);

}  // namespace cvlang
