// The files of the translation store: UTF-16 little-endian behind the byte-order mark FF FE, lines ended by CR LF.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace cvlang {

inline constexpr std::u16string_view kLineEnd = u"\r\n";

/// The text of a file's bytes. A byte-order mark is skipped, an odd last byte dropped.
std::u16string DecodeUtf16(std::string_view bytes);

/// Reads a file's text; it is empty on failure.
FileStatus ReadUtf16File(const std::filesystem::path& path, std::u16string& text);

/// Makes the text, behind a byte-order mark, the file's whole content. False on failure.
bool WriteUtf16File(const std::filesystem::path& path, std::u16string_view text);

}  // namespace cvlang
