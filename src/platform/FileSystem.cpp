#include <cstring>

#include "platform/FileSystem.h"

namespace cvlang {

void FileContent::Reserve(std::size_t capacity) {
    if (capacity <= capacity_)
        return;
    auto larger = std::make_unique_for_overwrite<char[]>(capacity);
    if (size_ > 0)
        std::memcpy(larger.get(), buffer_.get(), size_);
    buffer_ = std::move(larger);
    capacity_ = capacity;
}

}  // namespace cvlang
