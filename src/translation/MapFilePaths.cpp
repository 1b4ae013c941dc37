#include "translation/MapFilePaths.h"

#include <string>

#include "platform/Paths.h"

namespace cvlang {
namespace {

std::filesystem::path InDirectory(std::u16string_view directory, std::u16string_view name) {
    return PathFromText(JoinedPath({directory, name}));
}

std::filesystem::path BaseFile(const MapFileBase& base, const std::u16string& ending) {
    return InDirectory(base.directory, MapFilePrefix(base.application, base.base) + ending);
}

/// The old names have no extension of their own: the abbreviation stands in its place.
std::u16string LanguageEnding(std::u16string_view abbreviation, std::int32_t authoringVersion) {
    const std::u16string language(abbreviation);
    return authoringVersion < kNewNamesVersion ? u"." + language : u"-" + language + u".map";
}

}  // namespace

std::u16string MapFilePrefix(std::u16string_view application, std::u16string_view base) {
    return std::u16string(application).append(u"-").append(base).append(u"-");
}

std::u16string PublishedMapFile(std::u16string_view application, std::u16string_view base,
                                std::u16string_view abbreviation) {
    return MapFilePrefix(application, base) + u"tokens" +
           LanguageEnding(abbreviation, kNewNamesVersion);
}

std::filesystem::path ReferenceMapFile(const MapFileBase& base) {
    return BaseFile(base, u"tokens.map");
}

std::filesystem::path LanguageMapFile(const MapFileBase& base, std::u16string_view abbreviation,
                                      std::int32_t authoringVersion) {
    return BaseFile(base, u"tokens" + LanguageEnding(abbreviation, authoringVersion));
}

std::filesystem::path TemporaryMapFile(const MapFileBase& base, std::u16string_view abbreviation,
                                       std::int32_t authoringVersion) {
    return BaseFile(base, u"_tokens" + LanguageEnding(abbreviation, authoringVersion));
}

std::filesystem::path LanguageListFile(const MapFileBase& base) {
    return BaseFile(base, u"lang.txt");
}

std::filesystem::path LanguageTableFile(std::u16string_view directory) {
    return InDirectory(directory, u"LANGUAGES.TAB");
}

std::filesystem::path TemporaryLanguageTableFile(std::u16string_view directory) {
    return InDirectory(directory, u"_LANGUAGES.TAB");
}

}  // namespace cvlang
