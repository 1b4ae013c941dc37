// The names of all files of the translation store. All are in the application directory itself.
// Application and base are used exactly as listed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "config/Configuration.h"
#include "translation/Selection.h"

namespace cvlang {

/// From this authoring version on, files and folders have their new names.
inline constexpr std::int32_t kNewNamesVersion = 2;

/// The beginning of the names of a base's map files: "App-Base-tokens"
std::u16string MapFilePrefix(const Selection& selection);

/// The name of a language's published map file. Deliberate: always the new name,
/// App-Base-tokens-fr.map.
std::u16string PublishedMapFile(const Selection& selection, std::u16string_view abbreviation);

/// A language's map file: App-Base-tokens-fr.map, or App-Base-tokens.fr with the old names.
std::filesystem::path LanguageMapFile(std::u16string_view directory, const Selection& selection,
                                      std::u16string_view abbreviation,
                                      std::int32_t authoringVersion);

/// The temporary file for saving a text.
std::filesystem::path TemporaryMapFile(std::u16string_view directory, const Selection& selection,
                                       std::u16string_view abbreviation,
                                       std::int32_t authoringVersion);

/// The temporary file for removing a token from a map file, or for adding to a language list.
std::filesystem::path RemovalCopy(const std::filesystem::path& file);

/// The languages of a base: App-Base-lang.txt
std::filesystem::path LanguageListFile(std::u16string_view directory, const Selection& selection);

/// The language table, and its temporary file.
std::filesystem::path LanguageTableFile(std::u16string_view directory);
std::filesystem::path TemporaryLanguageTableFile(std::u16string_view directory);

/// The full path of the English map file of a base: App-Base-tokens.map
std::filesystem::path GetReferenceMapFilePath(const Configuration& config,
                                              const Selection& selection);

/// The full path of a language's map file.
std::filesystem::path GetLanguageMapFilePath(const Configuration& config,
                                             const Selection& selection);

/// The full path of a base's language list file.
std::filesystem::path GetLanguageListFilePath(const Configuration& config,
                                              const Selection& selection);

}  // namespace cvlang
