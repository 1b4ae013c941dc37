// The names of all files of the translation store. They lie directly in the application directory;
// application and base are used exactly as they are listed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace cvlang {

/// Where an application base's files are looked for.
struct MapFileBase {
    std::u16string_view directory;
    std::u16string_view application;
    std::u16string_view base;
};

/// From this authoring version on files and folders carry their new names.
inline constexpr std::int32_t kNewNamesVersion = 2;

/// What the names of a base's files begin with: "App-Base-"
std::u16string MapFilePrefix(std::u16string_view application, std::u16string_view base);

/// The name under which a language's map file is published, always a new one:
/// App-Base-tokens-fr.map
std::u16string PublishedMapFile(std::u16string_view application, std::u16string_view base,
                                std::u16string_view abbreviation);

/// The English map file: App-Base-tokens.map
std::filesystem::path ReferenceMapFile(const MapFileBase& base);

/// A language's map file: App-Base-tokens-fr.map, or App-Base-tokens.fr with the old names.
std::filesystem::path LanguageMapFile(const MapFileBase& base, std::u16string_view abbreviation,
                                      std::int32_t authoringVersion);

/// The file that a language's map file is rewritten through.
std::filesystem::path TemporaryMapFile(const MapFileBase& base, std::u16string_view abbreviation,
                                       std::int32_t authoringVersion);

/// The languages of a base: App-Base-lang.txt
std::filesystem::path LanguageListFile(const MapFileBase& base);

/// The languages whose pages were generated, and the file that it is rewritten through.
std::filesystem::path LanguageTableFile(std::u16string_view directory);
std::filesystem::path TemporaryLanguageTableFile(std::u16string_view directory);

}  // namespace cvlang
