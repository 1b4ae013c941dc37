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
    // Names and abbreviations in turn.
    const std::vector<std::u16string> cases = {u"Chinese",
                                               u"zh",
                                               u"ENGLISH",
                                               u"en",
                                               u"french",
                                               u"fr",
                                               u"German",
                                               u"de",
                                               u"Italian",
                                               u"it",
                                               u"Japanese",
                                               u"ja",
                                               u"Korean",
                                               u"ko",
                                               u"Portuguese",
                                               u"pt",
                                               u"portugese",
                                               u"pt",
                                               u"Brazilian Portuguese",
                                               u"pt-BR",
                                               u"Polish",
                                               u"pl",
                                               u"Brazilian PORTUGESE",
                                               u"pt-BR",
                                               u"Spanish",
                                               u"es",
                                               u"Danish",
                                               u"dk",
                                               u"Turkish",
                                               u"tr",
                                               u"Dutch",
                                               u"nl",
                                               u"Swedish",
                                               u"",
                                               u"Klingon",
                                               u"",
                                               u"",
                                               u"",
                                               u"French ",
                                               u""};
    for (std::size_t i = 0; i < cases.size(); i += 2) {
        EXPECT_EQ(GetLanguageAbbreviation(fake.config, u"WebMail", cases[i], u"default"),
                  cases[i + 1]);
    }
}

TEST(LanguageTable, AListFileIsTheOnlySourceOfItsBasesAbbreviations) {
    const FakeProgram fake;
    PutFile(fake.folder / "WebMail-default-lang.txt",
            "\xC9t\xE9\tfr-CA\r\nFrench\tfr\nFRENCH\tother\rNo abbreviation");
    const std::pair<std::u16string, std::u16string> cases[] = {{u"french", u"fr"},
                                                               {u"\u00C9T\u00C9", u"fr-CA"},
                                                               {u"no abbreviation", u""},
                                                               {u"German", u""}};
    for (const auto& [name, abbreviation] : cases)
        EXPECT_EQ(GetLanguageAbbreviation(fake.config, u"WebMail", name, u"default"), abbreviation);
    EXPECT_EQ(GetLanguageAbbreviation(fake.config, u"WebMail", u"German", u"kesto"), u"de");
}

TEST(LanguageTable, AMissingListFileIsCreatedWithTheDefaultLanguagesWhereThatCanBeDone) {
    FakeProgram fake;
    const auto names = LoadLanguageList(fake.config, u"WebMail", u"default.net");
    EXPECT_EQ(names.size(), 13U);
    EXPECT_EQ(names.back(), u"Swedish");
    EXPECT_EQ(FileBytes("WebMail-default.net-lang.txt"), kDefaultList);
    PutFile("WebMail-default.net-lang.txt", "B\tb\r\n\r\n\xC9\te");
    EXPECT_EQ(LoadLanguageList(fake.config, u"WebMail", u"default.net"),
              (std::vector<std::u16string>{u"B", u"", u"\u00C9"}));
    fake.registry.strings[u"Application Directory"] = TextFromPath(fake.folder / "none");
    EXPECT_TRUE(LoadLanguageList(fake.config, u"WebMail", u"default.net").empty());
}

TEST(LanguageTable, AGeneratedLanguageIsRecordedOnce) {
    const FakeProgram fake;
    UpdateLanguageTable(fake.program, u"WebMail", u"French", u"fr");
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
    PutFile("LANGUAGES.TAB", Utf16Bytes(u"de\tGerman\r\nfr\tFrancais\r\n"));
    for (int times = 0; times < 2; ++times)
        UpdateLanguageTable(fake.program, u"WebAdmin", u"French", u"fr");
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"de\tGerman\r\nfr\tFrench\r\n"));
    EXPECT_FALSE(std::filesystem::exists("_LANGUAGES.TAB"));
}

}  // namespace
}  // namespace cvlang
