// The program without its window: with arguments it generates the pages of one language and ends.
#pragma once

#include <string>
#include <string_view>

#include "run/Program.h"

namespace cvlang {

/// What the process returns to whoever started it.
enum class ExitStatus {
    Done = 0,              // a generation run, whatever it met, or a window that was closed
    InvalidArguments = 2,  // no application or no base
    NoWindow = 3           // no arguments, and no display to show the window on
};

/// The n-th field, from 1, of a text split at a delimiter. Double quotes protect delimiters and
/// belong to no field; one that is not closed protects the rest. Each delimiter counts, so two in a
/// row have an empty field between them.
std::u16string GetQuotedField(std::u16string_view sText, char16_t delimiter, int n);

/// Writes the version, the call and the place of the manual to standard error, as one line.
void WriteUsage();

/// Runs one generation. The command line names application, base and language, parted by single
/// blanks; an empty language is passed on.
ExitStatus RunCommandLine(Program& program, std::u16string_view sCommandLine);

}  // namespace cvlang
