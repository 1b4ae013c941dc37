#include "translation/StorePaths.h"

#include "platform/FileSystem.h"
#include "translation/Languages.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

fs::path InDirectory(std::u16string_view directory, std::u16string_view name) {
    return PathFromText(JoinedPath({directory, name}));
}

std::u16string BasePrefix(const Selection& selection) {
    return selection.application + u"-" + selection.base + u"-";
}

/// Deliberate: the abbreviation is the extension of an old name.
std::u16string LanguageEnding(std::u16string_view abbreviation, std::int32_t authoringVersion) {
    const std::u16string language(abbreviation);
    return authoringVersion < kNewNamesVersion ? u"." + language : u"-" + language + u".map";
}

}  // namespace

std::u16string MapFilePrefix(const Selection& selection) {
    return BasePrefix(selection) + u"tokens";
}

std::u16string PublishedMapFile(const Selection& selection, std::u16string_view abbreviation) {
    return MapFilePrefix(selection) + LanguageEnding(abbreviation, kNewNamesVersion);
}

fs::path LanguageMapFile(std::u16string_view directory, const Selection& selection,
                         std::u16string_view abbreviation, std::int32_t authoringVersion) {
    return InDirectory(directory,
                       MapFilePrefix(selection) + LanguageEnding(abbreviation, authoringVersion));
}

fs::path TemporaryMapFile(std::u16string_view directory, const Selection& selection,
                          std::u16string_view abbreviation, std::int32_t authoringVersion) {
    return InDirectory(directory, BasePrefix(selection) + u"_tokens" +
                                      LanguageEnding(abbreviation, authoringVersion));
}

fs::path RemovalCopy(const fs::path& file) {
    fs::path copy = file;
    copy += "D";
    return copy;
}

fs::path LanguageListFile(std::u16string_view directory, const Selection& selection) {
    return InDirectory(directory, BasePrefix(selection) + u"lang.txt");
}

fs::path LanguageTableFile(std::u16string_view directory) {
    return InDirectory(directory, u"LANGUAGES.TAB");
}

fs::path TemporaryLanguageTableFile(std::u16string_view directory) {
    return InDirectory(directory, u"_LANGUAGES.TAB");
}

fs::path GetReferenceMapFilePath(const Configuration& config, const Selection& selection) {
    return InDirectory(config.GetProgramDirectory(), MapFilePrefix(selection) + u".map");
}

fs::path GetLanguageMapFilePath(const Configuration& config, const Selection& selection) {
    return LanguageMapFile(config.GetProgramDirectory(), selection,
                           LanguageAbbreviation(config, selection), config.GetAuthoringVersion());
}

fs::path GetLanguageListFilePath(const Configuration& config, const Selection& selection) {
    return LanguageListFile(config.GetProgramDirectory(), selection);
}

}  // namespace cvlang
