// Removing a token after a question.
#pragma once

#include <filesystem>
#include <string_view>

#include "run/UserMessages.h"

namespace cvlang {

/// Asks whether to remove the token from the language map files too. Yes removes it from all map
/// files of the base, No only from the reference map file, Cancel from none.
void RemoveTokenAsAsked(UserMessages& messages, const std::filesystem::path& referenceMapFile,
                        std::u16string_view token);

}  // namespace cvlang
