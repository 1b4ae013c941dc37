#include "translation/LanguageTable.h"

#include "translation/StoreFile.h"
#include "translation/StorePaths.h"

namespace cvlang {

void UpdateLanguageTable(const Program& program, std::u16string_view /*application*/,
                         std::u16string_view LangName, std::u16string_view abbreviation) {
    const std::u16string directory = program.config.GetApplicationDirectory();
    RewriteKeyedLine({LanguageTableFile(directory), TemporaryLanguageTableFile(directory)},
                     abbreviation, LangName, program.logs);
}

}  // namespace cvlang
