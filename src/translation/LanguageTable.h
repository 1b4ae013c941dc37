// LANGUAGES.TAB, the language table: the languages whose pages were generated, for all
// applications. Each line is abbreviation TAB language name, with one line per abbreviation.
#pragma once

#include <string_view>

#include "run/Program.h"

namespace cvlang {

/// Records that pages of the language exist. Deliberate: the application is ignored.
void UpdateLanguageTable(const Program& program, std::u16string_view application,
                         std::u16string_view LangName, std::u16string_view abbreviation);

}  // namespace cvlang
