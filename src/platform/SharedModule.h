// Parts of the program that are loaded on demand.
#pragma once

#include <string>

namespace cvlang {

/// The address of a symbol in a shared module, which is searched for like the program's libraries;
/// null when module or symbol is missing.
void* FindInModule(const char* module, const char* symbol);

/// The system's reason for the last look-up that failed.
std::u16string ReasonNothingWasFound();

}  // namespace cvlang
