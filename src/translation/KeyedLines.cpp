#include "translation/KeyedLines.h"

#include <string>

#include "config/TextHelpers.h"
#include "platform/FileSystem.h"
#include "platform/Paths.h"
#include "translation/Lines.h"
#include "translation/Utf16File.h"

namespace cvlang {
namespace {

std::u16string KeyedLine(std::u16string_view key, std::u16string_view value) {
    std::u16string line(key);
    line += kTab;
    line += value;
    return line;
}

std::u16string WithNewValue(std::u16string_view text, std::u16string_view key,
                            std::u16string_view value) {
    std::u16string rewritten;
    rewritten.reserve(text.size() + key.size() + value.size() + 4);
    bool found = false;
    Lines<char16_t> lines(text);
    for (std::u16string_view line; lines.Next(line);) {
        const std::u16string_view field = SplitField(line, kTab, 1);
        // Blanks behind the key count as part of it here and are kept, although a look-up does not
        // find such a line.
        if (TrimTrailingBlanks(field) == key) {
            rewritten += KeyedLine(field, value);
            found = true;
        } else {
            rewritten += line;
        }
        rewritten += kStoreLineEnd;
    }
    if (!found)
        rewritten += KeyedLine(key, value) + std::u16string(kStoreLineEnd);
    return rewritten;
}

}  // namespace

void RewriteKeyedLine(const std::filesystem::path& target, const std::filesystem::path& temporary,
                      std::u16string_view key, std::u16string_view value, const Logs& logs) {
    const std::filesystem::path file = FindExisting(target);
    const Utf16File original(file);
    switch (original.Status()) {
        case FileStatus::Okay: {
            const std::filesystem::path copy = FindExisting(temporary);
            RemoveFile(copy);
            WriteUtf16File(copy, WithNewValue(original.Text(), key, value));
            // Deleted before the copy is known to exist, and on purpose: readers never see two
            // files, and every failure leaves the state that the mail server's own tools expect.
            RemoveFile(file);
            RenameFile(copy, file);
            break;
        }
        case FileStatus::NotFound:
            WriteUtf16File(file, KeyedLine(key, value) + std::u16string(kStoreLineEnd));
            break;
        case FileStatus::OtherError: {
            // The same words for every file, although not every line is a token's.
            [[maybe_unused]] const auto ignored =
                logs.LogTranslationEvent(u"Unable to update token");
            break;
        }
    }
}

}  // namespace cvlang
