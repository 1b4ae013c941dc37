#include "translation/Languages.h"

#include <algorithm>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "platform/Process.h"
#include "text/Strings.h"
#include "translation/StoreFile.h"
#include "translation/StorePaths.h"

namespace cvlang {
namespace {

struct Language {
    std::u16string_view name;
    std::u16string_view abbreviation;
};

// Deliberate: the tables differ. Only the first has Swedish; only the second has Turkish, Dutch and
// the misspelt Portuguese.
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

std::u16string_view BuiltInAbbreviation(std::u16string_view upperName) {
    const auto found = std::ranges::find(kBuiltInAbbreviations, upperName, &Language::name);
    return found == std::end(kBuiltInAbbreviations) ? std::u16string_view() : found->abbreviation;
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
    for (const Language& language : kDefaultLanguages)
        list.append(language.name).append(kTab).append(language.abbreviation).append(kCrLf16);
    return !WriteFile(FindExisting(file), Utf16ToAnsi(list));
}

bool IsSame(std::u16string_view a, std::u16string_view b) {
    return ToUpper(a) == ToUpper(b);
}

/// The reason to refuse a new language; empty when its name and abbreviation are new.
std::u16string_view ValidateNewLanguage(std::u16string_view list, const Language& added) {
    Lines<char16_t> lines(list);
    for (std::u16string_view line; lines.Next(line);) {
        if (IsSame(SplitField(line, kTab, 1), added.name))
            return u"That language name already exists and cannot be added.";
        if (IsSame(SplitField(line, kTab, 2), added.abbreviation))
            return u"That language abbreviation already exists and cannot be added.";
    }
    return {};
}

/// The lines of the list with unchanged bytes, then the new one.
std::string WithLanguage(std::string_view list, const Language& added) {
    std::string longer;
    Lines<char> lines(list);
    for (std::string_view line; lines.Next(line);)
        longer.append(line).append(kCrLf);
    return longer + Utf16ToAnsi(added.name) + "\t" + Utf16ToAnsi(added.abbreviation) + "\r\n";
}

/// The old list stays when that fails, also when the disk is full.
void ReplaceByLonger(const std::filesystem::path& file, std::string_view old,
                     std::string_view longer) {
    if (longer.starts_with(old))
        return AppendOrThrow(file, longer.substr(old.size()));
    const std::filesystem::path copy = RemovalCopy(file);
    // Adding nothing shows whether the file is read-only, which renaming does not.
    std::error_code error = AppendToFile(file, {});
    if (!error)
        error = WriteFile(copy, longer, Durability::OnDisk);
    if (!error)
        std::filesystem::permissions(copy, std::filesystem::status(file).permissions(), error);
    if (!error)
        std::filesystem::rename(copy, file, error);
    if (error) {
        RemoveFile(copy);
        throw std::filesystem::filesystem_error("cannot write", file, error);
    }
}

/// Returns the reason to refuse the language; empty when there is none.
std::u16string AddToList(const std::filesystem::path& file, const Language& added) {
    const ProcessLock lock(file.parent_path());
    FileContent content;
    if (ReadFile(file, content) != FileStatus::Okay)
        return u"Could not load language file " + TextFromPath(file);
    const std::u16string_view reason = ValidateNewLanguage(AnsiToUtf16(content.Bytes()), added);
    if (reason.empty())
        ReplaceByLonger(FindExisting(file), content.Bytes(), WithLanguage(content.Bytes(), added));
    return std::u16string(reason);
}

}  // namespace

std::u16string LanguageAbbreviation(const Configuration& config, const Selection& selection) {
    const std::u16string upperName = ToUpper(selection.language);
    std::u16string list;
    if (ReadLanguageList(LanguageListFile(config.GetApplicationDirectory(), selection), list))
        return AbbreviationInList(list, upperName);
    return std::u16string(BuiltInAbbreviation(upperName));
}

std::vector<std::u16string> LoadLanguageList(const Configuration& config,
                                             const Selection& selection) {
    const std::filesystem::path file = GetLanguageListFilePath(config, selection);
    std::u16string list;
    // A created file is read again, but only once: the list stays empty when it cannot be created.
    if (!ReadLanguageList(file, list) && CreateLanguageList(file))
        ReadLanguageList(file, list);
    std::vector<std::u16string> names;
    Lines<char16_t> lines(list);
    for (std::u16string_view line; lines.Next(line);)
        names.emplace_back(SplitField(line, kTab, 1));
    return names;
}

bool AddLanguageToBase(Program& program, const Selection& selection, std::u16string_view name,
                       std::u16string_view abbreviation) {
    const std::u16string reason =
        AddToList(GetLanguageListFilePath(program.config, selection), {name, abbreviation});
    if (!reason.empty())
        program.messages.Show({reason, u"Error", MessageButtons::Ok, MessageIcon::Critical});
    return reason.empty();
}

void UpdateLanguageTable(const Program& program, std::u16string_view /*application*/,
                         std::u16string_view LangName, std::u16string_view abbreviation) {
    const std::u16string directory = program.config.GetApplicationDirectory();
    RewriteKeyedLine({LanguageTableFile(directory), TemporaryLanguageTableFile(directory)},
                     abbreviation, LangName, program.logs);
}

}  // namespace cvlang
