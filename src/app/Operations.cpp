#include "app/Operations.h"

#include <functional>
#include <unordered_set>

#include "generation/ContentTree.h"
#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "translation/Languages.h"
#include "translation/TokenEditing.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

std::optional<std::size_t> FindNext(const std::vector<std::u16string>& entries,
                                    std::optional<std::size_t> selected,
                                    const std::function<bool(const std::u16string&)>& isWanted) {
    const std::size_t start = selected ? *selected + 1 : 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::size_t index = (start + i) % entries.size();
        if (isWanted(entries[index]))
            return index;
    }
    return {};
}

/// A repeated token has the value of its first line.
std::unordered_set<std::u16string> TranslatedTokens(const Program& program,
                                                    const Selection& selection) {
    Utf16File mapFile;
    TextArray tokens;
    TextArray values;
    LoadLanguageTokensIntoArrays(program.config, selection, mapFile, tokens, values);
    std::unordered_set<std::u16string_view> seen;
    std::unordered_set<std::u16string> translated;
    for (std::size_t i = 1; i < tokens.size(); ++i) {
        if (seen.insert(tokens[i]).second && !values[i].empty())
            translated.emplace(tokens[i]);
    }
    return translated;
}

}  // namespace

bool BaseExists(const Configuration& config, std::u16string_view ApplicationName,
                std::u16string_view BaseName) {
    return EntryExists(
        PathFromText(JoinedPath({config.GetApplicationDirectory(), ApplicationName, BaseName})));
}

std::vector<std::u16string> DetectBases(const Configuration& config,
                                        std::u16string_view applicationFolder) {
    std::vector<std::u16string> bases;
    for (const std::u16string_view name : {u"default", u"enterprise", u"zephra", u"kesto"}) {
        if (BaseExists(config, applicationFolder, name))
            bases.push_back(std::u16string(name) + u".net");
    }
    return bases;
}

void GenerateLanguage(Program& program, const Selection& selection) {
    {
        const ProgressScope waiting(*program.progress);
        ApplyTranslation(program, selection);
        const std::u16string abbreviation = LanguageAbbreviation(program.config, selection);
        if (!abbreviation.empty())
            UpdateLanguageTable(program, selection.application, selection.language, abbreviation);
    }
    // Deliberate: "sucessfully".
    program.messages.Show({u"Translated web pages were generated sucessfully for " +
                               selection.language + u" language.",
                           u"Language Generation", MessageButtons::Ok, MessageIcon::Information});
}

void RemoveTokenAsAsked(UserMessages& messages, const std::filesystem::path& referenceMapFile,
                        std::u16string_view token) {
    const MessageAnswer answer =
        messages.Show({u"Also remove this token from all translated language files?",
                       u"Confirm Removal", MessageButtons::YesNoCancel});
    if (answer == MessageAnswer::Cancel || !EntryExists(referenceMapFile))
        return;
    RemoveFromReferenceFile(referenceMapFile, token);
    if (answer == MessageAnswer::Yes)
        RemoveFromLanguageFiles(referenceMapFile, token);
}

std::optional<std::size_t> FindEntry(const std::vector<std::u16string>& entries,
                                     std::optional<std::size_t> selected,
                                     std::u16string_view text) {
    const std::u16string wanted = ToUpper(text);
    return FindNext(entries, selected, [&wanted](const std::u16string& entry) {
        return ToUpper(entry).find(wanted) != std::u16string::npos;
    });
}

std::optional<std::size_t> FindUntranslated(const Program& program,
                                            const std::vector<std::u16string>& entries,
                                            std::optional<std::size_t> selected,
                                            const Selection& selection) {
    const auto translated = TranslatedTokens(program, selection);
    return FindNext(entries, selected, [&translated](const std::u16string& entry) {
        return !translated.contains(std::u16string(NormaliseToken(entry)));
    });
}

}  // namespace cvlang
