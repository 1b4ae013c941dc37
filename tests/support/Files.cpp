#include "support/FakeProgram.h"

#include <chrono>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <iterator>

namespace cvlang {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    path_ = fs::canonical(fs::temp_directory_path()) / ("cvlang-" + std::to_string(now));
    fs::create_directories(path_);
    fs::current_path(path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
    for (const auto& entry : fs::recursive_directory_iterator(path_, ignored))
        fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(path_, ignored);
}

void PutFile(const fs::path& path, std::string_view bytes) {
    fs::create_directories(fs::absolute(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string FileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return "(no file)";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string Utf16Bytes(std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t c : text)
        bytes += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
    return bytes;
}

void SetReadOnly(const fs::path& path, bool readOnly) {
    constexpr auto kWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(path, kWrite, readOnly ? fs::perm_options::remove : fs::perm_options::add);
}

bool IsReadOnly(const fs::path& path) {
    return (fs::status(path).permissions() & fs::perms::owner_write) == fs::perms::none;
}

void SetVariable(const std::string& name, const std::string& value) {
    static std::deque<std::string> kept;  // the environment refers to them
    PUTENV(kept.emplace_back(name + "=" + value).data());
}

}  // namespace cvlang
