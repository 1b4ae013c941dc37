#include "platform/Paths.h"

#include <windows.h>

#include <algorithm>

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

}  // namespace cvlang
