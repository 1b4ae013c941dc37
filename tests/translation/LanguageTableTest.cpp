#include "translation/LanguageTable.h"

#include <gtest/gtest.h>

#include "config/TextHelpers.h"
#include "support/FakeProgram.h"
#include "translation/Lines.h"

namespace cvlang {
namespace {

constexpr char kDefaultList[] =
    "Chinese\tzh\r\nDanish\tdk\r\nEnglish\ten\r\nFrench\tfr\r\nGerman\tde\r\nItalian\tit\r\n"
    "Japanese\tja\r\nKorean\tko\r\nPolish\tpl\r\nPortuguese\tpt\r\nBrazilian Portuguese\tpt-BR\r\n"
    "Spanish\tes\r\nSwedish\tsw\r\n";

TEST(LanguageTable, TheBuiltInAbbreviationsServeWithoutAListFile) {
    const FakeProgram fake;
    constexpr std::u16string_view kCases =
        u"Chinese\tzh\nENGLISH\ten\nfrench\tfr\nGerman\tde\nItalian\tit\nJapanese\tja\nKorean\tko\n"
        u"Portuguese\tpt\nportugese\tpt\nBrazilian Portuguese\tpt-BR\nPolish\tpl\nDanish\tdk\n"
        u"Brazilian PORTUGESE\tpt-BR\nSpanish\tes\nTurkish\ttr\nDutch\tnl\nSwedish\t\nKlingon\t\n"
        u"\t\nFrench \t\n";
    Lines<char16_t> cases(kCases);
    for (std::u16string_view line; cases.Next(line);) {
        const std::u16string_view name = SplitField(line, kTab, 1);
        EXPECT_EQ(GetLanguageAbbreviation(fake.config, u"WebMail", name, u"default"),
                  SplitField(line, kTab, 2));
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
}

TEST(LanguageTable, AMissingListFileIsCreatedWithTheDefaultLanguagesWhereThatCanBeDone) {
    FakeProgram fake;
    EXPECT_EQ(LoadLanguageList(fake.config, u"WebMail", u"default.net").back(), u"Swedish");
    EXPECT_EQ(FileBytes("WebMail-default.net-lang.txt"), kDefaultList);
    PutFile("WebMail-default.net-lang.txt", "B\tb\r\n\r\n\xC9\te");
    EXPECT_EQ(LoadLanguageList(fake.config, u"WebMail", u"default.net"),
              (std::vector<std::u16string>{u"B", u"", u"\u00C9"}));
    fake.registry.strings[u"Application Directory"] = TextFromPath(fake.folder / "none");
    EXPECT_TRUE(LoadLanguageList(fake.config, u"WebMail", u"default.net").empty());
}

}  // namespace
}  // namespace cvlang
