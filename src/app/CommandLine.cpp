#include "app/CommandLine.h"

#include "generation/ContentTree.h"
#include "platform/Process.h"

namespace cvlang {

std::u16string GetQuotedField(std::u16string_view sText, char16_t delimiter, int n) {
    std::u16string field;
    int counter = 1;
    bool inQuotes = false;
    for (const char16_t c : sText) {
        if (c == delimiter && !inQuotes) {
            ++counter;
        } else if (c == u'"' && c != delimiter) {
            inQuotes = !inQuotes;
        } else if (counter == n) {
            field += c;
        }
    }
    return field;
}

void WriteUsage() {
    WriteErrorLine(u"CVLangTranslator " PROGRAM_VERSION
                   u", usage: CVLangTranslator APPLICATION BASE LANGUAGE (manual: man "
                   u"CVLangTranslator; on Windows docs\\README.md beside the program)");
}

ExitStatus RunCommandLine(Program& program, std::u16string_view sCommandLine) {
    program.unattended = true;
    const std::u16string application = GetQuotedField(sCommandLine, u' ', 1);
    const std::u16string base = GetQuotedField(sCommandLine, u' ', 2);
    if (base.empty() || application.empty()) {
        WriteUsage();
        program.messages.Show({u"Invalid arguments"});
        return ExitStatus::InvalidArguments;
    }
    ApplyTranslation(program, application, base, GetQuotedField(sCommandLine, u' ', 3));
    return ExitStatus::Done;
}

}  // namespace cvlang
