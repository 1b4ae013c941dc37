#include "translation/TokenList.h"

#include "config/TextHelpers.h"
#include "translation/Lines.h"
#include "translation/TokenMapFile.h"
#include "translation/Utf16File.h"

namespace cvlang {
namespace {

bool LooksLikeToken(std::u16string_view text) {
    return text.starts_with(kTokenPrefix);
}

}  // namespace

std::vector<std::u16string> ListTokens(const std::filesystem::path& referenceMapFile) {
    const Utf16File file(referenceMapFile);
    std::vector<std::u16string> entries;
    Lines<char16_t> lines(file.Text());
    for (std::u16string_view line; lines.Next(line);) {
        const std::u16string_view token = SplitField(line, kTab, kReferenceTokenField);
        const std::u16string_view value = SplitField(line, kTab, kReferenceValueField);
        if (!LooksLikeToken(token))
            continue;
        std::u16string& entry = entries.emplace_back(token);
        if (!value.empty())
            entry.append(u": ").append(value);
    }
    return entries;
}

TokenEntry SplitTokenEntry(std::u16string_view entry) {
    return {TrimBlanks(SplitField(entry, u":", 1)), TrimBlanks(SplitField(entry, u":", 2))};
}

}  // namespace cvlang
