// "Apply Translation", as the window has it done.
#pragma once

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// Generates a language's pages for a base of the selected application, records the language and
/// tells the user that it is done, whatever became of single pages.
void GenerateLanguage(Program& program, const Selection& selection);

}  // namespace cvlang
