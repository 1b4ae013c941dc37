// The "Apply Translation" command of the main window.
#pragma once

#include "run/Program.h"
#include "translation/Selection.h"

namespace cvlang {

/// Generates the pages of the selection, records the language in the language table, and reports
/// success. Deliberate: failures of single pages are only logged.
void GenerateLanguage(Program& program, const Selection& selection);

}  // namespace cvlang
