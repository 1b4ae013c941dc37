#include "translation/LanguageTable.h"

#include "config/TextHelpers.h"
#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "platform/LetterCase.h"
#include "platform/Paths.h"
#include "translation/Lines.h"
#include "translation/MapFilePaths.h"

namespace cvlang {
namespace {

struct Language {
    std::u16string_view name;
    std::u16string_view abbreviation;
};

// The two tables differ on purpose: installed map files and folders are named by what each of them
// has always said. Swedish is in the first alone; Turkish, Dutch and the misspelled Portuguese are
// in the second alone.
constexpr Language kDefaultLanguages[] = {
    {u"Chinese", u"zh"},
    {u"Danish", u"dk"},
    {u"English", u"en"},
    {u"French", u"fr"},
    {u"German", u"de"},
    {u"Italian", u"it"},
    {u"Japanese", u"ja"},
    {u"Korean", u"ko"},
    {u"Polish", u"pl"},
    {u"Portuguese", u"pt"},
    {u"Brazilian Portuguese", u"pt-BR"},
    {u"Spanish", u"es"},
    {u"Swedish", u"sw"},
};

constexpr Language kBuiltInAbbreviations[] = {
    {u"CHINESE", u"zh"},
    {u"ENGLISH", u"en"},
    {u"FRENCH", u"fr"},
    {u"GERMAN", u"de"},
    {u"ITALIAN", u"it"},
    {u"JAPANESE", u"ja"},
    {u"KOREAN", u"ko"},
    {u"PORTUGUESE", u"pt"},
    {u"PORTUGESE", u"pt"},
    {u"BRAZILIAN PORTUGUESE", u"pt-BR"},
    {u"BRAZILIAN PORTUGESE", u"pt-BR"},
    {u"POLISH", u"pl"},
    {u"SPANISH", u"es"},
    {u"DANISH", u"dk"},
    {u"TURKISH", u"tr"},
    {u"DUTCH", u"nl"},
};

std::u16string BuiltInAbbreviation(std::u16string_view upperName) {
    for (const Language& language : kBuiltInAbbreviations) {
        if (language.name == upperName)
            return std::u16string(language.abbreviation);
    }
    return {};
}

std::u16string AbbreviationInList(std::u16string_view list, std::u16string_view upperName) {
    Lines<char16_t> lines(list);
    for (std::u16string_view line; lines.Next(line);) {
        if (ToUpper(SplitField(line, kTab, 1)) == upperName)
            return std::u16string(SplitField(line, kTab, 2));
    }
    return {};
}

/// The text of a language list file; false when it cannot be opened.
bool ReadLanguageList(const std::filesystem::path& file, std::u16string& list) {
    FileContent content;
    if (ReadFile(file, content) != FileStatus::Okay)
        return false;
    list = AnsiToUtf16(content.Bytes());
    return true;
}

bool CreateLanguageList(const std::filesystem::path& file) {
    std::u16string list;
    for (const Language& language : kDefaultLanguages) {
        list += language.name;
        list += kTab;
        list += language.abbreviation;
        list += u"\r\n";
    }
    return WriteFile(FindExisting(file), Utf16ToAnsi(list));
}

}  // namespace

std::u16string GetLanguageAbbreviation(const Configuration& config, std::u16string_view application,
                                       std::u16string_view LangName, std::u16string_view BaseName) {
    const std::u16string directory = config.GetApplicationDirectory();
    const std::u16string upperName = ToUpper(LangName);
    std::u16string list;
    if (ReadLanguageList(LanguageListFile({directory, application, BaseName}), list))
        return AbbreviationInList(list, upperName);
    return BuiltInAbbreviation(upperName);
}

std::filesystem::path GetLanguageListFilePath(const Configuration& config,
                                              std::u16string_view currentApplication,
                                              std::u16string_view BaseName) {
    return LanguageListFile({config.GetProgramDirectory(), currentApplication, BaseName});
}

std::vector<std::u16string> LoadLanguageList(const Configuration& config,
                                             std::u16string_view currentApplication,
                                             std::u16string_view BaseName) {
    const std::filesystem::path file =
        GetLanguageListFilePath(config, currentApplication, BaseName);
    std::u16string list;
    // A file that was just created is read once more; one that cannot be created leaves the list
    // empty.
    if (!ReadLanguageList(file, list) && CreateLanguageList(file))
        ReadLanguageList(file, list);
    std::vector<std::u16string> names;
    Lines<char16_t> lines(list);
    for (std::u16string_view line; lines.Next(line);)
        names.emplace_back(SplitField(line, kTab, 1));
    return names;
}

}  // namespace cvlang
