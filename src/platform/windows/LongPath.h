// Paths beyond the 260 characters that Windows takes without further ado.
#pragma once

#include <filesystem>
#include <string>

namespace cvlang {

/// The path in the form that the file functions take at any length.
std::wstring LongPath(const std::filesystem::path& path);

}  // namespace cvlang
