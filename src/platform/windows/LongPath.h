// Paths longer than 260 characters, for Windows.
#pragma once

#include <filesystem>
#include <string>

namespace cvlang {

/// The path in the form that file functions accept at any length.
std::wstring LongPath(const std::filesystem::path& path);

}  // namespace cvlang
