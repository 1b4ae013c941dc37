// The files of the translation store, read and written as they are.
#include <gmock/gmock.h>

#include "support/FakeProgram.h"
#include "text/Strings.h"
#include "translation/Languages.h"
#include "translation/StoreFile.h"
#include "translation/TokenEditing.h"
#include "translation/TokenMapFile.h"

namespace cvlang::tests {

namespace fs = std::filesystem;

const std::string kOld = Utf16Bytes(u"k\told\r\n");
const std::string kNew = Utf16Bytes(u"k\tnew\r\n");
const std::string kNoFile = "(no file)";

void Rewrite(const FakeProgram& fake, const fs::path& folder = ".") {
    RewriteKeyedLine({folder / "t.map", folder / "_t.map"}, u"k", u"new", fake.logs);
}

TEST(KeyedLines, EveryLineOfTheKeyGetsTheValueAndAllOthersStay) {
    const FakeProgram fake;
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"a\t1\r\nk\told\tmore\r\nb\r\n", u"a\t1\r\nk\tnew\r\nb\r\n"},
        {u"k\t1\r\nk  \t2\r\nk", u"k\tnew\r\nk  \tnew\r\nk\tnew\r\n"},
        {u"K\t1\r\n k\t2\r\n", u"K\t1\r\n k\t2\r\nk\tnew\r\n"},
        {u"\r\na\nb\r", u"\r\na\r\nb\r\nk\tnew\r\n"},
        {u"", u"k\tnew\r\n"}};
    for (const auto& [before, after] : cases) {
        PutFile("t.map", Utf16Bytes(before));
        PutFile("_t.map", "left over");
        Rewrite(fake);
        EXPECT_EQ(FileBytes("t.map"), Utf16Bytes(after));
        EXPECT_EQ(FileBytes("_t.map"), kNoFile);
    }
}

TEST(KeyedLines, EveryFailureLeavesItsState) {
    const FakeProgram fake;
    PutFile("_t.map", "left over");
    Rewrite(fake);  // a missing file is created without the temporary one
    EXPECT_EQ(FileBytes("t.map"), kNew);
    EXPECT_EQ(FileBytes("_t.map"), "left over");

    PutFile("t.map", kOld);
    SetReadOnly("t.map", true);
    Rewrite(fake);  // a file that cannot be deleted stays beside its new version
    EXPECT_EQ(FileBytes("t.map"), kOld);
    EXPECT_EQ(FileBytes("_t.map"), kNew);
    SetReadOnly("t.map", false);

    fs::remove("_t.map");
    fs::create_directory("_t.map");
    Rewrite(fake);  // a temporary file that cannot be created costs the file
    EXPECT_EQ(FileBytes("t.map"), kNoFile);
    PutFile("t.map", kOld);
    RewriteKeyedLine({"t.map", "none/_t.map"}, u"k", u"new", fake.logs);
    EXPECT_EQ(FileBytes("t.map"), kNoFile);

    EXPECT_EQ(fake.ErrorLog(), kNoFile);
    Rewrite(fake, "none");  // only a file that cannot be opened is told
    EXPECT_EQ(SplitField(AnsiToUtf16(fake.ErrorLog()), kTab, 2), u"Unable to update token\r\n");
}

const Selection kSelection{u"WebMail", u"default", u"French"};
constexpr char kList[] = "WebMail-default-lang.txt";

std::u16string Abbreviation(const FakeProgram& fake, std::u16string_view language) {
    return GetLanguageAbbreviation(fake.config, u"WebMail", std::u16string(language), u"default");
}

TEST(LanguageList, BuiltInAbbreviationsAreUsedUntilAListFileExists) {
    FakeProgram fake;
    constexpr std::u16string_view kInBothTables =
        u"Chinese\tzh\r\nDanish\tdk\r\nEnglish\ten\r\nFrench\tfr\r\nGerman\tde\r\n"
        u"Italian\tit\r\nJapanese\tja\r\nKorean\tko\r\nPolish\tpl\r\nPortuguese\tpt\r\n"
        u"Brazilian Portuguese\tpt-BR\r\nSpanish\tes\r\n";
    Lines<char16_t> lines(kInBothTables);
    for (std::u16string_view line; lines.Next(line);)
        EXPECT_EQ(Abbreviation(fake, SplitField(line, kTab, 1)), SplitField(line, kTab, 2));
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"portugese", u"pt"}, {u"Brazilian PORTUGESE", u"pt-BR"},
        {u"Turkish", u"tr"},   {u"Dutch", u"nl"},
        {u"Swedish", u""},     {u"French ", u""}};
    for (const auto& [name, abbreviation] : cases)
        EXPECT_EQ(Abbreviation(fake, name), abbreviation);
    EXPECT_EQ(LoadLanguageList(fake.config, kSelection).back(), u"Swedish");
    EXPECT_EQ(FileBytes(kList), Utf16ToAnsi(kInBothTables) + "Swedish\tsw\r\n");
    EXPECT_EQ(Abbreviation(fake, u"swedish"), u"sw");
    EXPECT_EQ(Abbreviation(fake, u"Turkish"), u"");
    PutFile(kList, "\xC9t\xE9\tfr-CA\n\n\xC9T\xC9\tother");
    EXPECT_EQ(Abbreviation(fake, u"\u00E9t\u00E9"), u"fr-CA");
    fake.registry.strings[u"Application Directory"] = TextFromPath(fake.folder / "none");
    EXPECT_TRUE(LoadLanguageList(fake.config, kSelection).empty());
}

constexpr char kFrench[] = "WebMail-default-tokens-fr.map";

TEST(TokenMapFile, EachLineIsLoadedAtItsNumberAndTheFirstExactTokenIsFound) {
    FakeProgram fake;
    fake.program.CurrentApplication = u"WebMail";
    PutFile(kFrench, Utf16Bytes(u"[CV_A] \tblank\r\n\r\n[cv_a]\tcase\r\n[CV_A]\t1\t2\r\n[CV_A]") +
                         "b");  // an odd byte at the end
    for (const std::size_t held : {std::size_t{1}, std::size_t{10}}) {
        TextArray tokens(held, u"held");
        TextArray values(held, u"held");
        Utf16File file;
        LoadLanguageTokensIntoArrays(fake.config, {u"WebMail", u"default", u"German"}, file, tokens,
                                     values);
        EXPECT_EQ(tokens, TextArray(held, u"held"));  // as no file is there
        LoadLanguageTokensIntoArrays(fake.config, kSelection, file, tokens, values);
        EXPECT_EQ(tokens, (TextArray{u"held", u"[CV_A] ", u"", u"[cv_a]", u"[CV_A]", u"[CV_A]"}));
        EXPECT_EQ(values, (TextArray{u"held", u"blank", u"", u"case", u"1", u""}));
    }
    for (const auto& [language, value] : {std::pair{u"French", u"1"}, {u"German", u""}})
        EXPECT_EQ(GetTokenValue(fake.program, u"[CV_A]: Hello [x]: y", u"default", language),
                  value);
}

TEST(LanguageList, ANewLanguageIsAppendedUnlessItsNameOrAbbreviationIsListed) {
    FakeProgram fake;
    const auto add = [&fake](std::u16string_view name, std::u16string_view abbreviation) {
        fake.messages.shown.clear();
        AddLanguageToBase(fake.program, kSelection, name, abbreviation);
        return fake.messages.shown.empty() ? u"" : fake.messages.shown[0].text;
    };
    EXPECT_EQ(add(u"Greek", u"el"),
              u"Could not load language file " + TextFromPath(fake.folder / kList));
    EXPECT_EQ(FileBytes(kList), kNoFile);

    const std::u16string name = u"That language name already exists and cannot be added.";
    const std::u16string abbreviation =
        u"That language abbreviation already exists and cannot be added.";
    const std::string list = "French\tfr\n\nGerman\tde";
    const std::tuple<std::u16string, std::u16string, std::u16string, std::string> cases[] = {
        {u"french", u"DE", name, ""},
        {u"GERMAN", u"DE", name, ""},
        {u"Greek", u"FR", abbreviation, ""},
        {u"Greek", u"", abbreviation, ""},  // the blank line has none either
        {u"Fran\u00E7ais", u"\u03B5", u"",
         "Fran\xE7"
         "ais\t?\r\n"}};
    for (const auto& [newName, newAbbreviation, refusal, line] : cases) {
        PutFile(kList, list);
        EXPECT_EQ(add(newName, newAbbreviation), refusal);
        EXPECT_EQ(FileBytes(kList),
                  line.empty() ? list : "French\tfr\r\n\r\nGerman\tde\r\n" + line);
    }
}

TEST(LanguageTable, RecordsEachAbbreviationOnceForAllApplications) {
    const FakeProgram fake;
    PutFile("_LANGUAGES.TAB", "left over");
    UpdateLanguageTable(fake.program, u"WebMail", u"French", u"fr");
    UpdateLanguageTable(fake.program, u"WebAdmin", u"Fran\u00E7ais", u"fr");
    UpdateLanguageTable(fake.program, u"WebAdmin", u"German", u"de");
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFran\u00E7ais\r\nde\tGerman\r\n"));
    EXPECT_EQ(FileBytes("_LANGUAGES.TAB"), kNoFile);
}

TEST(TokenEditing, AValueIsSavedUnderTheNamesOfTheAuthoringVersion) {
    FakeProgram fake;
    for (const auto& [version, file, copy] :
         {std::tuple{2, kFrench, "WebMail-default-_tokens-fr.map"},
          {1, "WebMail-default-tokens.fr", "WebMail-default-_tokens.fr"}}) {
        fake.registry.numbers[u"Authoring Version"] = version;
        PutFile(file, Utf16Bytes(u"[CV_A]\told\r\n"));
        PutFile(copy, "left over");
        UpdateToken(fake.program, kSelection, u"[CV_A]: A [x]: b", u"new");
        EXPECT_EQ(FileBytes(file), Utf16Bytes(u"[CV_A]\tnew\r\n"));
        EXPECT_EQ(FileBytes(copy), kNoFile);
    }
}

TEST(TokenEditing, ATokenIsAddedAtTheEndOnALineOfItsOwn) {
    const TemporaryFolder folder;
    const std::u16string more = u"\t\t\t[CV_TXT- MORE]\tMore \u20AC\r\n";
    const std::tuple<std::string, std::u16string> cases[] = {
        {"", more},
        {Utf16Bytes(u"a"), u"a\r\n" + more},
        {Utf16Bytes(u"a") + "x", u"a\r\n" + more},  // half a character at the end
        {Utf16Bytes(u"a\n"), u"a\n\r\n" + more},
        {Utf16Bytes(u"a\r\n"), u"a\r\n" + more}};
    for (const auto& [before, after] : cases) {
        fs::remove("r.map");
        if (!before.empty())
            PutFile("r.map", before);
        AddTokenLine("r.map", u" MORE", u"More \u20AC");
        EXPECT_EQ(FileBytes("r.map"), Utf16Bytes(after));
    }
}

TEST(TokenEditing, ATokenIsRemovedByItsExactNameFromTheFilesOfItsBase) {
    const TemporaryFolder folder;
    const char kReference[] = "WebMail-default.net-tokens.map";
    const std::u16string others =
        u"\t\t\t[CV_A] \t2\r\n[CV_A]\t3\r\n\t\t\t[cv_a]\r\n\r\nshort\tline\r\n";
    PutFile(kReference, Utf16Bytes(u"\t\t\t[CV_A]\t1\r\n" + others + u"\t\t\t[CV_A]"));
    PutFile(std::string(kReference) + "D", "left over");
    RemoveFromReferenceFile(kReference, u"[CV_A]");
    EXPECT_EQ(FileBytes(kReference), Utf16Bytes(others));
    EXPECT_EQ(FileBytes(std::string(kReference) + "D"), kNoFile);

    const std::u16string kept = u"[CV_AB]\t1\r\n\r\nxx[CV_A]\t2\r\n";
    const std::string before = Utf16Bytes(u"\uFEFF[CV_A]\t3\r\n" + kept + u"x[CV_A]\t4\r\n");
    for (const auto& [name, isOfBase] : {std::pair{"WebMail-default.net-tokens-fr.map", true},
                                         {"webmail-DEFAULT.net-tokens-.map", true},
                                         {"WebMail-default-tokens-fr.map", false},
                                         {"WebMail-default.net-tokens-fr.map.old", false}}) {
        PutFile(name, before);
        RemoveFromLanguageFiles(folder / kReference, u"[CV_A]");
        EXPECT_EQ(FileBytes(name), isOfBase ? Utf16Bytes(kept) : before) << name;
    }
}

TEST(TokenMapFile, TokensAreListedWithTheirEnglishValues) {
    const TemporaryFolder folder;
    EXPECT_TRUE(ListTokens("none.map").empty());
    PutFile("r.map",
            Utf16Bytes(u"\t\t\t[CV_A]\tHello: you\tmore\r\n[CV_B]\tfirst field\n"
                       u"\t\t\t[CV_C]\r\t\t\t\tno token\n\t\t\tother\n\t\t\tother\tvalue"));
    EXPECT_EQ(ListTokens("r.map"), (std::vector<std::u16string>{u"[CV_A]: Hello: you", u"[CV_C]"}));
    EXPECT_THAT(SplitTokenEntry(u" [CV_A] :  Hello : you"),
                testing::FieldsAre(u"[CV_A]", u"Hello"));
}

}  // namespace cvlang::tests
