#include "translation/NewLanguage.h"

#include "config/TextHelpers.h"
#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "translation/LanguageTable.h"
#include "translation/Lines.h"

namespace cvlang {
namespace {

void Refuse(Program& program, std::u16string text) {
    program.messages.Show({std::move(text), u"Error", MessageButtons::Ok, MessageIcon::Critical});
}

bool IsSame(std::u16string_view a, std::u16string_view b) {
    return ToUpper(a) == ToUpper(b);
}

/// What speaks against adding the language; nothing when its name and abbreviation are new.
std::u16string_view Objection(std::u16string_view list, std::u16string_view name,
                              std::u16string_view abbreviation) {
    Lines<char16_t> lines(list);
    for (std::u16string_view line; lines.Next(line);) {
        if (IsSame(SplitField(line, kTab, 1), name))
            return u"That language name already exists and cannot be added.";
        if (IsSame(SplitField(line, kTab, 2), abbreviation))
            return u"That language abbreviation already exists and cannot be added.";
    }
    return {};
}

/// The list's lines as they stand, byte for byte, and the new one.
std::string WithLanguage(std::string_view list, std::u16string_view name,
                         std::u16string_view abbreviation) {
    std::string longer;
    Lines<char> lines(list);
    for (std::string_view line; lines.Next(line);)
        longer.append(line).append("\r\n");
    longer += Utf16ToAnsi(name) + "\t" + Utf16ToAnsi(abbreviation) + "\r\n";
    return longer;
}

}  // namespace

bool AddLanguageToBase(Program& program, std::u16string_view BaseName, std::u16string_view name,
                       std::u16string_view abbreviation) {
    const std::filesystem::path file =
        GetLanguageListFilePath(program.config, program.CurrentApplication, BaseName);
    FileContent content;
    if (ReadFile(file, content) != FileStatus::Okay) {
        Refuse(program, u"Could not load language file " + TextFromPath(file));
        return false;
    }
    const std::u16string_view objection =
        Objection(AnsiToUtf16(content.Bytes()), name, abbreviation);
    if (!objection.empty()) {
        Refuse(program, std::u16string(objection));
        return false;
    }
    return WriteFile(FindExisting(file), WithLanguage(content.Bytes(), name, abbreviation));
}

}  // namespace cvlang
