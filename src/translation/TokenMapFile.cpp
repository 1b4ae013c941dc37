#include "translation/TokenMapFile.h"

#include <algorithm>
#include <utility>

#include "config/TextHelpers.h"
#include "translation/LanguageTable.h"
#include "translation/Lines.h"
#include "translation/MapFilePaths.h"
#include "translation/Utf16File.h"

namespace cvlang {
namespace {

std::filesystem::path LanguageMapFileIn(std::u16string_view directory, const Configuration& config,
                                        std::u16string_view application, std::u16string_view base,
                                        std::u16string_view language) {
    return LanguageMapFile({directory, application, base},
                           GetLanguageAbbreviation(config, application, language, base),
                           config.GetAuthoringVersion());
}

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

std::filesystem::path GetReferenceMapFilePath(const Configuration& config,
                                              std::u16string_view currentApplication,
                                              std::u16string_view BaseName) {
    return ReferenceMapFile({config.GetProgramDirectory(), currentApplication, BaseName});
}

std::filesystem::path GetLanguageMapFilePath(const Configuration& config,
                                             std::u16string_view currentApplication,
                                             std::u16string_view BaseName,
                                             std::u16string_view LangName) {
    return LanguageMapFileIn(config.GetProgramDirectory(), config, currentApplication, BaseName,
                             LangName);
}

std::u16string GetTokenValue(const Configuration& config, std::u16string_view currentApplication,
                             std::u16string_view token, std::u16string_view BaseName,
                             std::u16string_view LangName) {
    token = NormaliseToken(token);
    const Utf16File file(GetLanguageMapFilePath(config, currentApplication, BaseName, LangName));
    Lines<char16_t> lines(file.Text());
    for (std::u16string_view line; lines.Next(line);) {
        if (SplitField(line, kTab, kTokenField) == token)
            return std::u16string(SplitField(line, kTab, kValueField));
    }
    return {};
}

void LoadLanguageTokensIntoArrays(const Configuration& config, std::u16string_view ApplicationName,
                                  std::u16string_view BaseName, std::u16string_view LangName,
                                  Utf16File& file, TextArray& arrTokens, TextArray& arrValues) {
    Utf16File mapFile(LanguageMapFileIn(config.GetApplicationDirectory(), config, ApplicationName,
                                        BaseName, LangName));
    const std::u16string_view text = mapFile.Text();
    if (text.empty())
        return;
    file = std::move(mapFile);  // the text stays where it is
    const auto lineEnds = static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\n'));
    arrTokens.reserve(lineEnds + 2);
    arrValues.reserve(lineEnds + 2);
    std::size_t n = 0;
    Lines<char16_t> lines(text);
    for (std::u16string_view line; lines.Next(line);) {
        ++n;
        if (arrTokens.size() <= n)
            Resize(arrTokens, n);
        if (arrValues.size() <= n)
            Resize(arrValues, n);
        arrTokens[n] = SplitField(line, kTab, kTokenField);
        // Counting goes on behind the token.
        arrValues[n] = SplitField(line.substr(arrTokens[n].size()), kTab, kValueField);
    }
    Resize(arrTokens, n);
    Resize(arrValues, n);
}

}  // namespace cvlang
