// Adding a language to an application base.
#pragma once

#include <string_view>

#include "config/Program.h"

namespace cvlang {

/// Appends a language to the language list file of a base of the selected application. A name or an
/// abbreviation that is listed already, in any letter case, is refused with a message, as is a list
/// that cannot be opened; the file is then left alone. True when the language was added.
bool AddLanguageToBase(Program& program, std::u16string_view BaseName, std::u16string_view name,
                       std::u16string_view abbreviation);

}  // namespace cvlang
