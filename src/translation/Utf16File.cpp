#include "translation/Utf16File.h"

#include <bit>
#include <cstring>

namespace cvlang {

static_assert(std::endian::native == std::endian::little,
              "files are read and written as they lie in memory");

namespace {
constexpr std::string_view kByteOrderMark = "\xFF\xFE";
}

std::u16string DecodeUtf16(std::string_view bytes) {
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        bytes.remove_prefix(kByteOrderMark.size());
    std::u16string text(bytes.size() / 2, u'\0');
    std::memcpy(text.data(), bytes.data(), text.size() * 2);
    return text;
}

FileStatus ReadUtf16File(const std::filesystem::path& path, std::u16string& text) {
    FileContent content;
    const FileStatus status = ReadFile(path, content);
    text = DecodeUtf16(content.Bytes());
    return status;
}

bool WriteUtf16File(const std::filesystem::path& path, std::u16string_view text) {
    std::string bytes(kByteOrderMark);
    bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * 2);
    return WriteFile(path, bytes);
}

}  // namespace cvlang
