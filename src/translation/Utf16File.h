// The files of the translation store: UTF-16 little-endian behind the byte-order mark FF FE, lines
// ended by CR LF.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/FileSystem.h"

namespace cvlang {

inline constexpr std::u16string_view kStoreLineEnd = u"\r\n";

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

/// Makes the text, behind a byte-order mark, the file's whole content. False on failure.
bool WriteUtf16File(const std::filesystem::path& path, std::u16string_view text);

/// Writes the text at the end of an existing file. What cannot be written is lost.
void AppendToUtf16File(const std::filesystem::path& path, std::u16string_view text);

}  // namespace cvlang
