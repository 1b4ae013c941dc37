#include "app/ApplyCommand.h"

#include <string>

#include "generation/ContentTree.h"
#include "translation/LanguageList.h"
#include "translation/LanguageTable.h"

namespace cvlang {
namespace {

void GenerateAndRecord(Program& program, const Selection& selection) {
    const ProgressScope waiting(*program.progress);
    ApplyTranslation(program, selection);
    const std::u16string abbreviation = LanguageAbbreviation(program.config, selection);
    if (!abbreviation.empty())
        UpdateLanguageTable(program, selection.application, selection.language, abbreviation);
}

}  // namespace

void GenerateLanguage(Program& program, const Selection& selection) {
    GenerateAndRecord(program, selection);
    // Deliberate: "sucessfully".
    program.messages.Show({u"Translated web pages were generated sucessfully for " +
                               selection.language + u" language.",
                           u"Language Generation", MessageButtons::Ok, MessageIcon::Information});
}

}  // namespace cvlang
