// Parts of the program that are loaded when they are first needed.
#pragma once

#include <string>

namespace cvlang {

/// The address of a symbol in a shared module, which is looked for as the program's own libraries
/// are; null when either is missing.
void* FindInModule(const char* module, const char* symbol);

/// The system's words on why the last look-up found nothing.
std::u16string ReasonNothingWasFound();

}  // namespace cvlang
