// Languages: their names, and the abbreviations that name their files and folders.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "config/Configuration.h"

namespace cvlang {

/// The abbreviation of a language: from the base's language list file when there is one, and then
/// from nowhere else; otherwise from the built-in table. Empty when it is unknown. Letter case does
/// not matter.
std::u16string GetLanguageAbbreviation(const Configuration& config, std::u16string_view application,
                                       std::u16string_view LangName, std::u16string_view BaseName);

/// The language list file of a base of the selected application.
std::filesystem::path GetLanguageListFilePath(const Configuration& config,
                                              std::u16string_view currentApplication,
                                              std::u16string_view BaseName);

/// The names in a base's language list file, in its order, blank lines included. A missing file is
/// created with the default languages; when it cannot be, the list is empty.
std::vector<std::u16string> LoadLanguageList(const Configuration& config,
                                             std::u16string_view currentApplication,
                                             std::u16string_view BaseName);

}  // namespace cvlang
