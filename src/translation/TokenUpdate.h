// Saving what the user changed, line by line, into the files of the translation store.
#pragma once

#include <string_view>

#include "config/Program.h"

namespace cvlang {

/// Sets the value of a token, or of a list entry, in a language's map file of the selected
/// application and base. A failure leaves no more than a line in the log.
void UpdateToken(const Program& program, std::u16string_view BaseName, std::u16string_view LangName,
                 std::u16string_view token, std::u16string_view value);

/// Records in LANGUAGES.TAB that pages of the language with this abbreviation exist. All
/// applications share the table.
void UpdateLanguageTable(const Program& program, std::u16string_view application,
                         std::u16string_view LangName, std::u16string_view abbreviation);

}  // namespace cvlang
