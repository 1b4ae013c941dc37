// A buffer for a page's text, and the encoding of values. Pages are bytes: their own text is not
// converted, values are UTF-8.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

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

    /// For pieces that are mostly shorter than kReadable. A copy of constant size avoids branch
    /// mispredictions.
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
        // Grows in place where possible, so that a large text needs no second buffer.
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

inline constexpr std::string_view kUtf8ByteOrderMark = "\xEF\xBB\xBF";

/// Encodes a text as UTF-8 into the array and returns the number of bytes. Deliberate: each
/// UTF-16 code unit is encoded by itself, also each half of a surrogate pair. An empty text
/// leaves the array untouched.
std::size_t EncodeUTF8(std::u16string_view sText, std::vector<std::uint8_t>& bytOutput);

/// The bytes as text of one character each, ready to be inserted into a page; it lives as long as
/// the bytes.
std::string_view BytesToString(const std::vector<std::uint8_t>& bytInput);

/// The text with a backslash before every "'" and every quotation mark; backslashes in the text
/// stay as they are.
std::string EscapeForScript(std::string_view sText);
/// The same at the end of a page.
void AppendEscapedForScript(std::string_view text, PageText& page);

}  // namespace cvlang
