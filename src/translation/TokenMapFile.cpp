#include "translation/TokenMapFile.h"

#include <utility>

#include "text/Strings.h"
#include "translation/Languages.h"
#include "translation/StorePaths.h"

namespace cvlang {
namespace {

void Resize(TextArray& array, std::size_t upperBound) {
    array.resize(upperBound + 1);
}

}  // namespace

std::u16string_view NormaliseToken(std::u16string_view entry) {
    const std::size_t end = entry.find(u"]:");
    if (entry.substr(0, kTokenPrefix.size()) != kTokenPrefix || end == std::u16string_view::npos)
        return entry;
    return entry.substr(0, end + 1);
}

std::u16string TokenValue(const Configuration& config, std::u16string_view token,
                          const Selection& selection) {
    token = NormaliseToken(token);
    const Utf16File file(GetLanguageMapFilePath(config, selection));
    Lines<char16_t> lines(file.Text());
    for (std::u16string_view line; lines.Next(line);) {
        if (SplitField(line, kTab, kTokenField) == token)
            return std::u16string(SplitField(line, kTab, kValueField));
    }
    return {};
}

void LoadTokens(const std::filesystem::path& path, Utf16File& file, TextArray& arrTokens,
                TextArray& arrValues) {
    Utf16File mapFile(path);
    const std::u16string_view text = mapFile.Text();
    if (text.empty())
        return;
    file = std::move(mapFile);  // does not move the text
    std::size_t n = 0;
    Lines<char16_t> lines(text);
    for (std::u16string_view line; lines.Next(line);) {
        ++n;
        if (arrTokens.size() <= n)
            Resize(arrTokens, n);
        if (arrValues.size() <= n)
            Resize(arrValues, n);
        arrTokens[n] = SplitField(line, kTab, kTokenField);
        // The rest begins with the TAB, so the value is its field 2.
        arrValues[n] = SplitField(line.substr(arrTokens[n].size()), kTab, kValueField);
    }
    Resize(arrTokens, n);
    Resize(arrValues, n);
}

void LoadLanguageTokensIntoArrays(const Configuration& config, const Selection& selection,
                                  Utf16File& file, TextArray& arrTokens, TextArray& arrValues) {
    LoadTokens(
        LanguageMapFile(config.GetApplicationDirectory(), selection,
                        LanguageAbbreviation(config, selection), config.GetAuthoringVersion()),
        file, arrTokens, arrValues);
}

std::vector<std::u16string> ListTokens(const std::filesystem::path& referenceMapFile) {
    const Utf16File file(referenceMapFile);
    std::vector<std::u16string> entries;
    Lines<char16_t> lines(file.Text());
    for (std::u16string_view line; lines.Next(line);) {
        const std::u16string_view token = SplitField(line, kTab, kReferenceTokenField);
        const std::u16string_view value = SplitField(line, kTab, kReferenceValueField);
        if (!token.starts_with(kTokenPrefix))
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
