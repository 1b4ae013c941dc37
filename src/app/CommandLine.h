// Command-line mode: generates the pages of one language.
#pragma once

#include <string>
#include <string_view>

#include "run/Program.h"

namespace cvlang {

/// The exit status of the process.
enum class ExitStatus {
    Done = 0,              // a run ended, with or without errors, or the window was closed
    InvalidArguments = 2,  // no application or no base
    NoWindow = 3           // no arguments, and no display to show the window on
};

/// The n-th field of a text split at a delimiter, from 1. Double quotes protect delimiters and are
/// removed. Deliberate: two delimiters in a row have an empty field between them, and an unclosed
/// quote protects the rest.
std::u16string GetQuotedField(std::u16string_view sText, char16_t delimiter, int n);

/// Writes the version, the usage and the place of the manual to standard error, as one line.
void WriteUsage();

/// Runs one generation. The command line is application, base and language, separated by single
/// blanks. Deliberate: an empty language is accepted.
ExitStatus RunCommandLine(Program& program, std::u16string_view sCommandLine);

}  // namespace cvlang
