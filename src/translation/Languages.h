// Languages, in two kinds of files.
//
// - A language list file has the languages of an application base. Each line is name TAB
//   abbreviation, in the ANSI code page. The abbreviation is part of the names of a language's
//   files and folders.
//
// - LANGUAGES.TAB, the language table, has the languages whose pages were generated, for all
//   applications. Each line is abbreviation TAB name, with one line per abbreviation.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// The abbreviation of the selected language; empty when it is unknown. Letter case does not
/// matter. Deliberate: the built-in table is used only when the base has no language list file.
std::u16string LanguageAbbreviation(const Configuration& config, const Selection& selection);

/// The same for an application, a language and a base.
inline std::u16string GetLanguageAbbreviation(const Configuration& config,
                                              std::u16string application, std::u16string LangName,
                                              std::u16string BaseName) {
    return LanguageAbbreviation(config,
                                {std::move(application), std::move(BaseName), std::move(LangName)});
}

/// The names in a base's language list file, in its order, including blank lines. A missing file is
/// created with the default languages. The list is empty when that fails.
std::vector<std::u16string> LoadLanguageList(const Configuration& config,
                                             const Selection& selection);

/// Appends a language to a base's language list file; true on success. A name or an abbreviation
/// that is listed, in any letter case, or a list that cannot be opened is refused with a message.
/// Throws filesystem_error when the file cannot be written. The file is then unchanged.
bool AddLanguageToBase(Program& program, const Selection& selection, std::u16string_view name,
                       std::u16string_view abbreviation);

/// Records in the language table that pages of the language exist. Deliberate: the application is
/// ignored.
void UpdateLanguageTable(const Program& program, std::u16string_view application,
                         std::u16string_view LangName, std::u16string_view abbreviation);

}  // namespace cvlang
