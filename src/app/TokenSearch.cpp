#include "app/TokenSearch.h"

#include <functional>
#include <unordered_set>

#include "platform/Ansi.h"
#include "translation/TokenMapFile.h"

namespace cvlang {
namespace {

using Test = std::function<bool(const std::u16string& entry)>;

std::optional<std::size_t> FindNext(const std::vector<std::u16string>& entries,
                                    std::optional<std::size_t> selected, const Test& isWanted) {
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
