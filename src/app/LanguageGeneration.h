// "Apply Translation", as the window has it done.
#pragma once

#include <string_view>

#include "config/Program.h"

namespace cvlang {

/// Generates a language's pages for a base of the selected application, records the language and
/// tells the user that it is done, whatever became of single pages.
void GenerateLanguage(Program& program, std::u16string_view base, std::u16string_view language);

}  // namespace cvlang
