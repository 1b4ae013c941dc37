#include "translation/TokenUpdate.h"

#include "translation/KeyedLines.h"
#include "translation/LanguageTable.h"
#include "translation/MapFilePaths.h"
#include "translation/TokenMapFile.h"

namespace cvlang {

void UpdateToken(const Program& program, std::u16string_view BaseName, std::u16string_view LangName,
                 std::u16string_view token, std::u16string_view value) {
    const Configuration& config = program.config;
    const std::u16string directory = config.GetProgramDirectory();
    const MapFileBase base{directory, program.CurrentApplication, BaseName};
    const std::u16string abbreviation =
        GetLanguageAbbreviation(config, program.CurrentApplication, LangName, BaseName);
    const std::int32_t version = config.GetAuthoringVersion();
    RewriteKeyedLine(LanguageMapFile(base, abbreviation, version),
                     TemporaryMapFile(base, abbreviation, version), NormaliseToken(token), value,
                     program.logs);
}

void UpdateLanguageTable(const Program& program, std::u16string_view /*application*/,
                         std::u16string_view LangName, std::u16string_view abbreviation) {
    const std::u16string directory = program.config.GetApplicationDirectory();
    RewriteKeyedLine(LanguageTableFile(directory), TemporaryLanguageTableFile(directory),
                     abbreviation, LangName, program.logs);
}

}  // namespace cvlang
