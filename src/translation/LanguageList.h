// Language list files: the languages of an application base, one a line: name TAB abbreviation, in
// the ANSI code page. The abbreviations name the languages' files and folders.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// The abbreviation of the selected language: from the base's language list file when there is one,
/// and then from nowhere else; otherwise from the built-in table. Empty when it is unknown. Letter
/// case does not matter.
std::u16string LanguageAbbreviation(const Configuration& config, const Selection& selection);

/// The same for an application, a language and a base.
inline std::u16string GetLanguageAbbreviation(const Configuration& config,
                                              std::u16string application, std::u16string LangName,
                                              std::u16string BaseName) {
    return LanguageAbbreviation(config,
                                {std::move(application), std::move(BaseName), std::move(LangName)});
}

/// The names in a base's language list file, in its order, blank lines included. A missing file is
/// created with the default languages; when it cannot be, the list is empty.
std::vector<std::u16string> LoadLanguageList(const Configuration& config,
                                             const Selection& selection);

/// Appends a language to a base's language list file. A name or an abbreviation that is listed
/// already, in any letter case, is refused with a message, as is a list that cannot be opened; the
/// file is then left alone. True when the language was added.
bool AddLanguageToBase(Program& program, const Selection& selection, std::u16string_view name,
                       std::u16string_view abbreviation);

}  // namespace cvlang
