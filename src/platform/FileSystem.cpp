#include "platform/FileSystem.h"

#include <algorithm>
#include <cstring>

namespace cvlang {

std::u16string JoinedPath(std::initializer_list<std::u16string_view> parts) {
    std::u16string path;
    for (const std::u16string_view& part : parts) {
        if (&part != parts.begin())
            path += kSeparator;
        path += part;
    }
    return path;
}

void FileContent::Reserve(std::size_t capacity) {
    if (capacity <= capacity_)
        return;
    auto larger = std::make_unique_for_overwrite<char[]>(capacity);
    if (size_ > 0)
        std::memcpy(larger.get(), buffer_.get(), size_);
    buffer_ = std::move(larger);
    capacity_ = capacity;
}

bool IsWithin(const std::filesystem::path& inner, const std::filesystem::path& outer) {
    return !outer.empty() &&
           std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
               outer.end();
}

bool IsSameFolder(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code ignored;
    return std::filesystem::equivalent(a, b, ignored);
}

}  // namespace cvlang
