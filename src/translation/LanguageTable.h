// LANGUAGES.TAB, the language table: the languages whose pages were generated. All applications
// share it. One line per abbreviation: abbreviation TAB language name.
#pragma once

#include <string_view>

#include "run/Program.h"

namespace cvlang {

/// Records that pages of the language exist. The application is accepted and not used.
void UpdateLanguageTable(const Program& program, std::u16string_view application,
                         std::u16string_view LangName, std::u16string_view abbreviation);

}  // namespace cvlang
