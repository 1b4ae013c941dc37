#include "platform/Paths.h"

#include <windows.h>

#include <algorithm>

#include "platform/windows/LongPath.h"

namespace cvlang {

std::filesystem::path PathFromText(std::u16string_view text) {
    std::wstring path(text.begin(), text.end());
    std::replace(path.begin(), path.end(), L'\0', L'\uFFFD');
    return path;
}

std::u16string TextFromPath(const std::filesystem::path& path) {
    // Not u16string(), which refuses lone surrogates.
    return {path.native().begin(), path.native().end()};
}

std::filesystem::path FindExisting(const std::filesystem::path& path) {
    return path;
}

std::filesystem::path ExecutableFolder() {
    std::wstring file(32768, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
    file.resize(length);
    return std::filesystem::path(file).parent_path();
}

std::wstring LongPath(const std::filesystem::path& path) {
    constexpr std::size_t kShort = 240;  // a folder's path must leave room for an 8.3 name
    const std::wstring& text = path.native();
    if (text.size() < kShort || text.rfind(LR"(\\?\)", 0) == 0)
        return text;
    // Not lexically_normal(), which removes one of the two separators before a server's name.
    std::wstring full(32768, L'\0');
    full.resize(
        GetFullPathNameW(text.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.rfind(LR"(\\)", 0) == 0)
        return LR"(\\?\UNC)" + full.substr(1);
    return LR"(\\?\)" + full;
}

}  // namespace cvlang
