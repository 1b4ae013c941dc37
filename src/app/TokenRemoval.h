// Removing a token, as far as the user wants it removed.
#pragma once

#include <filesystem>
#include <string_view>

#include "run/UserMessages.h"

namespace cvlang {

/// Asks whether the translated files are meant too, and removes the token from the reference map
/// file and, on Yes, from all language map files beside it. On Cancel nothing happens.
void RemoveTokenAsAsked(UserMessages& messages, const std::filesystem::path& referenceMapFile,
                        std::u16string_view token);

}  // namespace cvlang
