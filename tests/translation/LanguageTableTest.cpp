#include "translation/LanguageTable.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "translation/TokenUpdate.h"

namespace cvlang {
namespace {

constexpr char kDefaultList[] =
    "Chinese\tzh\r\nDanish\tdk\r\nEnglish\ten\r\nFrench\tfr\r\nGerman\tde\r\nItalian\tit\r\n"
    "Japanese\tja\r\nKorean\tko\r\nPolish\tpl\r\nPortuguese\tpt\r\nBrazilian Portuguese\tpt-BR\r\n"
    "Spanish\tes\r\nSwedish\tsw\r\n";

TEST(LanguageTable, TheBuiltInAbbreviationsServeWithoutAListFile) {
    const FakeProgram fake;
    const struct {
        const char16_t* name;
        const char16_t* abbreviation;
    } cases[] = {
        {u"Chinese", u"zh"},
        {u"ENGLISH", u"en"},
        {u"french", u"fr"},
        {u"German", u"de"},
        {u"Italian", u"it"},
        {u"Japanese", u"ja"},
        {u"Korean", u"ko"},
        {u"Portuguese", u"pt"},
        {u"portugese", u"pt"},
        {u"Brazilian Portuguese", u"pt-BR"},
        {u"Brazilian PORTUGESE", u"pt-BR"},
        {u"Polish", u"pl"},
        {u"Spanish", u"es"},
        {u"Danish", u"dk"},
        {u"Turkish", u"tr"},
        {u"Dutch", u"nl"},
        {u"Swedish", u""},
        {u"Klingon", u""},
        {u"", u""},
        {u"French ", u""},
    };
    for (const auto& [name, abbreviation] : cases)
        EXPECT_EQ(GetLanguageAbbreviation(fake.config, u"WebMail", name, u"default"), abbreviation);
}

TEST(LanguageTable, AListFileIsTheOnlySourceOfItsBasesAbbreviations) {
    const FakeProgram fake;
    PutFile(fake.folder / "WebMail-default-lang.txt",
            "Fran\xE7"
            "ais\tfr-CA\r\nFrench\tfr\nFRENCH\tother\rNo abbreviation");
    const auto abbreviation = [&fake](std::u16string_view name, std::u16string_view base) {
        return GetLanguageAbbreviation(fake.config, u"WebMail", name, base);
    };
    EXPECT_EQ(abbreviation(u"french", u"default"), u"fr");
    EXPECT_EQ(abbreviation(u"FRAN\u00C7AIS", u"default"), u"fr-CA");
    EXPECT_EQ(abbreviation(u"no abbreviation", u"default"), u"");
    EXPECT_EQ(abbreviation(u"German", u"default"), u"");
    EXPECT_EQ(abbreviation(u"German", u"enterprise"), u"de");
}

TEST(LanguageTable, AMissingListFileIsCreatedWithTheDefaultLanguages) {
    const FakeProgram fake;
    const auto names = LoadLanguageList(fake.config, u"WebMail", u"default.net");
    EXPECT_EQ(names.size(), 13U);
    EXPECT_EQ(names.front(), u"Chinese");
    EXPECT_EQ(names.back(), u"Swedish");
    EXPECT_EQ(FileBytes(fake.folder / "WebMail-default.net-lang.txt"), kDefaultList);
    PutFile(fake.folder / "WebMail-default.net-lang.txt", "B\tb\r\n\r\n\xC9\te");
    EXPECT_EQ(LoadLanguageList(fake.config, u"WebMail", u"default.net"),
              (std::vector<std::u16string>{u"B", u"", u"\u00C9"}));
}

TEST(LanguageTable, AListThatCanNeitherBeReadNorCreatedIsEmpty) {
    FakeProgram fake;
    fake.registry.strings[u"Application Directory"] = TextFromPath(fake.folder / "none");
    EXPECT_TRUE(LoadLanguageList(fake.config, u"WebMail", u"default.net").empty());
}

TEST(LanguageTable, AGeneratedLanguageIsRecordedOnce) {
    const FakeProgram fake;
    UpdateLanguageTable(fake.program, u"WebMail", u"French", u"fr");
    EXPECT_EQ(FileBytes(fake.folder / "LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
    PutFile(fake.folder / "LANGUAGES.TAB", Utf16Bytes(u"de\tGerman\r\nfr\tFrancais\r\n"));
    UpdateLanguageTable(fake.program, u"WebAdmin", u"French", u"fr");
    UpdateLanguageTable(fake.program, u"WebAdmin", u"French", u"fr");
    EXPECT_EQ(FileBytes(fake.folder / "LANGUAGES.TAB"),
              Utf16Bytes(u"de\tGerman\r\nfr\tFrench\r\n"));
    EXPECT_FALSE(std::filesystem::exists(fake.folder / "_LANGUAGES.TAB"));
}

}  // namespace
}  // namespace cvlang
