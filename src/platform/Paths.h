// Paths: conversion from and to UTF-16 text, and look-up as on Windows.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

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

}  // namespace cvlang
