#include "translation/StoreFile.h"

#include <bit>
#include <cstdint>

#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "text/Strings.h"

namespace cvlang {

static_assert(std::endian::native == std::endian::little,
              "files are read and written as they lie in memory");

namespace {

constexpr char16_t kByteOrderMark = 0xFEFF;

std::string_view BytesOf(std::u16string_view text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * 2};
}

std::u16string KeyedLine(std::u16string_view key, std::u16string_view value) {
    return std::u16string(key).append(kTab).append(value);
}

std::u16string WithNewValue(std::u16string_view text, std::u16string_view key,
                            std::u16string_view value) {
    std::u16string rewritten;
    rewritten.reserve(text.size() + key.size() + value.size() + 4);
    bool found = false;
    Lines<char16_t> lines(text);
    for (std::u16string_view line; lines.Next(line);) {
        const std::u16string_view field = SplitField(line, kTab, 1);
        // Deliberate: blanks after the key are ignored and kept, although a look-up does not find
        // such a line.
        if (TrimTrailingBlanks(field) == key) {
            rewritten += KeyedLine(field, value);
            found = true;
        } else {
            rewritten += line;
        }
        rewritten += kCrLf16;
    }
    if (!found)
        rewritten += KeyedLine(key, value) + std::u16string(kCrLf16);
    return rewritten;
}

}  // namespace

std::u16string_view Utf16File::Text() const {
    const std::string_view bytes = content_.Bytes();
    std::u16string_view text(reinterpret_cast<const char16_t*>(bytes.data()), bytes.size() / 2);
    if (!text.empty() && text.front() == kByteOrderMark)
        text.remove_prefix(1);
    return text;
}

bool WriteUtf16File(const std::filesystem::path& path, std::u16string text) {
    text.insert(0, 1, kByteOrderMark);
    return !WriteFile(path, BytesOf(text), Durability::OnDisk);
}

void AppendOrThrow(const std::filesystem::path& path, std::string_view bytes) {
    std::error_code noFile;
    const std::uintmax_t size = std::filesystem::file_size(path, noFile);
    const std::error_code error = AppendToFile(path, bytes);
    if (!error)
        return;
    std::error_code ignored;
    if (noFile) {
        std::filesystem::remove(path, ignored);
    } else if (std::filesystem::file_size(path, ignored) != size) {
        std::filesystem::resize_file(path, size, ignored);
    }
    throw std::filesystem::filesystem_error("cannot write", path, error);
}

void AppendTextOrThrow(const std::filesystem::path& path, std::u16string_view text) {
    std::error_code noFile;
    const std::uintmax_t size = std::filesystem::file_size(path, noFile);
    // Adding nothing shows whether the file is read-only, which resizing does not.
    if (!noFile && size % 2 != 0 && !AppendToFile(path, {}))
        std::filesystem::resize_file(path, size - 1);
    AppendOrThrow(path, std::string(BytesOf(noFile ? u"\uFEFF" : u"")).append(BytesOf(text)));
}

void RewriteKeyedLine(const RewrittenFile& rewritten, std::u16string_view key,
                      std::u16string_view value, const Logs& logs) {
    const ProcessLock lock(rewritten.file.parent_path());
    const std::filesystem::path file = FindExisting(rewritten.file);
    const Utf16File original(file);
    switch (original.Status()) {
        case FileStatus::Okay: {
            const std::filesystem::path copy = FindExisting(rewritten.copy);
            RemoveFile(copy);
            WriteUtf16File(copy, WithNewValue(original.Text(), key, value));
            // Deliberate: the file is deleted before the copy is known to exist.
            RemoveFile(file);
            RenameFile(copy, file);
            break;
        }
        case FileStatus::NotFound:
            WriteUtf16File(file, KeyedLine(key, value) + std::u16string(kCrLf16));
            break;
        case FileStatus::OtherError:
            // Deliberate: the same text for every file, also for those without tokens.
            static_cast<void>(logs.LogTranslationEvent(u"Unable to update token"));
            break;
    }
}

}  // namespace cvlang
