#include "app/LanguageGeneration.h"

#include <string>

#include "generation/ContentTree.h"
#include "translation/LanguageTable.h"
#include "translation/TokenUpdate.h"

namespace cvlang {
namespace {

void GenerateAndRecord(Program& program, std::u16string_view base, std::u16string_view language) {
    const WaitScope waiting(*program.waiting);
    const std::u16string& application = program.CurrentApplication;
    ApplyTranslation(program, application, base, language);
    const std::u16string abbreviation =
        GetLanguageAbbreviation(program.config, application, language, base);
    if (!abbreviation.empty())
        UpdateLanguageTable(program, application, language, abbreviation);
}

}  // namespace

void GenerateLanguage(Program& program, std::u16string_view base, std::u16string_view language) {
    GenerateAndRecord(program, base, language);
    // Users and their documentation know the word as it is spelt here.
    program.messages.Show({u"Translated web pages were generated sucessfully for " +
                               std::u16string(language) + u" language.",
                           u"Language Generation", MessageButtons::Ok, MessageIcon::Information});
}

}  // namespace cvlang
