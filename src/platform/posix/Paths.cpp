#include "platform/Paths.h"

#include <sys/stat.h>

#include <algorithm>

#include "platform/FileSystem.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

bool IsOnDisk(const std::filesystem::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

}  // namespace

std::filesystem::path PathFromText(std::u16string_view text) {
    std::u16string path(text);
    std::replace(path.begin(), path.end(), u'\0', u'\uFFFD');
    return Utf16ToUtf8(path);
}

std::u16string TextFromPath(const std::filesystem::path& path) {
    return Utf8ToUtf16(path.native());
}

std::filesystem::path FindExisting(const std::filesystem::path& path) {
    if (IsOnDisk(path))
        return path;
    std::filesystem::path found;
    bool missing = false;
    for (const std::filesystem::path& part : path) {
        if (!missing && !IsOnDisk(found / part)) {
            const EntryName entry = EntryNames(found.empty() ? "." : found).Find(part);
            missing = !entry.exists;
            found /= entry.name;
        } else {
            found /= part;
        }
    }
    return found;
}

std::filesystem::path ExecutableFolder() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
}

}  // namespace cvlang
