// File names: between the program's UTF-16 text and the system's paths, and found as Windows finds
// them.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace cvlang {

/// The separator of the system's paths: "\" on Windows, "/" on Linux.
inline constexpr auto kSeparator =
    static_cast<char16_t>(std::filesystem::path::preferred_separator);

/// The parts with separators between them; an empty part leaves its two separators side by side.
std::u16string JoinedPath(std::initializer_list<std::u16string_view> parts);

/// The path that a UTF-16 text names (on Linux as UTF-8, independent of the locale). A NUL, which
/// to the system would end the path at some folder above, becomes U+FFFD.
std::filesystem::path PathFromText(std::u16string_view text);

/// The UTF-16 text of a path.
std::u16string TextFromPath(const std::filesystem::path& path);

/// The path under which the entry that Windows would find stands on the disk: the exact name first,
/// otherwise one that differs only in letter case, folder by folder. A path of which some part does
/// not exist is returned with the names it was given from there on. On Windows the path itself.
std::filesystem::path FindExisting(const std::filesystem::path& path);

/// The folder that the running program's file lies in, without a separator at its end; empty when
/// unknown.
std::filesystem::path ExecutableFolder();

}  // namespace cvlang
