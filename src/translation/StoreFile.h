// The files of the translation store: UTF-16 little-endian behind the byte-order mark FF FE, lines
// ended by CR LF.
#pragma once

#include <filesystem>
#include <string_view>

#include "config/Logs.h"
#include "platform/FileSystem.h"

namespace cvlang {

/// A file's text as it was when it was read.
class Utf16File {
  public:
    Utf16File() = default;
    /// Reads a file; the text is empty on failure.
    explicit Utf16File(const std::filesystem::path& path) : status_(ReadFile(path, content_)) {}

    FileStatus Status() const { return status_; }
    /// The text without a byte-order mark, an odd last byte dropped. It lives as long as the
    /// object.
    std::u16string_view Text() const;
    /// Whether there is an odd last byte: nothing can be appended then.
    bool EndsWithinCharacter() const { return content_.Bytes().size() % 2 != 0; }

  private:
    FileContent content_;
    FileStatus status_ = FileStatus::NotFound;
};

/// Makes the text, behind a byte-order mark, the file's whole content, on the disk itself: the file
/// that it takes the place of is deleted afterwards. False on failure.
bool WriteUtf16File(const std::filesystem::path& path, std::u16string_view text);

/// Writes the text at the end of an existing file. What cannot be written is lost.
void AppendToUtf16File(const std::filesystem::path& path, std::u16string_view text);

/// A file of the store and the file that it is rewritten through.
struct RewrittenFile {
    std::filesystem::path file;
    std::filesystem::path copy;
};

/// In a file of lines "key TAB value", gives every line with the key the new value, or adds the
/// line at the end. The copy is written with the change, the file deleted, and the copy renamed. A
/// missing file is created with that one line; one that cannot be opened leaves "Unable to update
/// token" in the log.
void RewriteKeyedLine(const RewrittenFile& rewritten, std::u16string_view key,
                      std::u16string_view value, const Logs& logs);

}  // namespace cvlang
