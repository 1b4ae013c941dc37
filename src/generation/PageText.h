// A page's text while it is put together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>

namespace cvlang {

/// Grows at its end, as a string does, and takes many short pieces faster.
class PageText {
  public:
    /// So many bytes can be read from the start of each piece that is given to AppendShort.
    static constexpr std::size_t kReadable = 64;

    std::string_view View() const { return {buffer_.get(), size_}; }
    std::size_t Size() const { return size_; }
    void Truncate(std::size_t size) { size_ = size; }

    void Append(std::string_view piece) { piece.copy(Extend(piece.size()), piece.size()); }

    /// For pieces of less than kReadable bytes mostly: copying so many always spares the processor
    /// guessing the piece's size, which it often knows late.
    void AppendShort(std::string_view piece) {
        char* const end = Extend(piece.size());
        std::memcpy(end, piece.data(), kReadable);
        if (piece.size() > kReadable)
            std::memcpy(end + kReadable, piece.data() + kReadable, piece.size() - kReadable);
    }

    /// Adds that many characters, to be written by the caller, and returns where.
    char* Extend(std::size_t size) {
        if (capacity_ - size_ < size + kReadable)
            Grow(size + kReadable);
        char* const end = buffer_.get() + size_;
        size_ += size;
        return end;
    }

  private:
    void Grow(std::size_t size) {
        const std::size_t capacity = std::max(capacity_ + capacity_ / 4, size_ + size);
        // A large text stays where it lies: no second one is needed beside it.
        auto* larger = static_cast<char*>(std::realloc(buffer_.get(), capacity));
        if (larger == nullptr)
            throw std::bad_alloc();
        static_cast<void>(buffer_.release());
        buffer_.reset(larger);
        capacity_ = capacity;
    }

    struct Free {
        void operator()(char* p) const { std::free(p); }
    };
    std::unique_ptr<char[], Free> buffer_;
    std::size_t capacity_ = 0;
    std::size_t size_ = 0;
};

}  // namespace cvlang
