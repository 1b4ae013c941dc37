#include "translation/Utf16File.h"

#include <bit>
#include <string>

namespace cvlang {

static_assert(std::endian::native == std::endian::little,
              "files are read and written as they lie in memory");

namespace {

constexpr char16_t kByteOrderMark = 0xFEFF;

std::string_view BytesOf(std::u16string_view text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * 2};
}

}  // namespace

std::u16string_view Utf16File::Text() const {
    const std::string_view bytes = content_.Bytes();
    std::u16string_view text(reinterpret_cast<const char16_t*>(bytes.data()), bytes.size() / 2);
    if (!text.empty() && text.front() == kByteOrderMark)
        text.remove_prefix(1);
    return text;
}

bool WriteUtf16File(const std::filesystem::path& path, std::u16string_view text) {
    std::u16string marked(1, kByteOrderMark);
    marked += text;
    return WriteFile(path, BytesOf(marked));
}

void AppendToUtf16File(const std::filesystem::path& path, std::u16string_view text) {
    [[maybe_unused]] const std::error_code ignored = AppendToFile(path, BytesOf(text));
}

}  // namespace cvlang
