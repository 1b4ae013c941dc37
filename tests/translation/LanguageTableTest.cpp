#include "translation/LanguageTable.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

constexpr char kList[] = "WebMail-default-lang.txt";

std::u16string Abbreviation(const FakeProgram& fake, std::u16string_view language) {
    return GetLanguageAbbreviation(fake.config, u"WebMail", language, u"default");
}

TEST(LanguageTable, TheBuiltInAbbreviationsServeUntilAListFileIsCreated) {
    FakeProgram fake;
    const std::pair<std::u16string, std::u16string> cases[] = {
        {u"Chinese", u"zh"},   {u"ENGLISH", u"en"},
        {u"french", u"fr"},    {u"German", u"de"},
        {u"Italian", u"it"},   {u"Japanese", u"ja"},
        {u"Korean", u"ko"},    {u"Portuguese", u"pt"},
        {u"portugese", u"pt"}, {u"Brazilian Portuguese", u"pt-BR"},
        {u"Polish", u"pl"},    {u"Brazilian PORTUGESE", u"pt-BR"},
        {u"Danish", u"dk"},    {u"Spanish", u"es"},
        {u"Turkish", u"tr"},   {u"Dutch", u"nl"},
        {u"Swedish", u""},     {u"French ", u""}};
    for (const auto& [name, abbreviation] : cases)
        EXPECT_EQ(Abbreviation(fake, name), abbreviation);
    EXPECT_EQ(LoadLanguageList(fake.config, u"WebMail", u"default").back(), u"Swedish");
    EXPECT_EQ(FileBytes(kList),
              "Chinese\tzh\r\nDanish\tdk\r\nEnglish\ten\r\nFrench\tfr\r\nGerman\tde\r\n"
              "Italian\tit\r\nJapanese\tja\r\nKorean\tko\r\nPolish\tpl\r\nPortuguese\tpt\r\n"
              "Brazilian Portuguese\tpt-BR\r\nSpanish\tes\r\nSwedish\tsw\r\n");
    EXPECT_EQ(Abbreviation(fake, u"Swedish"), u"sw");
    fake.registry.strings[u"Application Directory"] = TextFromPath(fake.folder / "none");
    EXPECT_TRUE(LoadLanguageList(fake.config, u"WebMail", u"default").empty());
}

TEST(LanguageTable, AListFileIsTheOnlySourceOfItsBasesLanguages) {
    const FakeProgram fake;
    PutFile(kList, "\xC9t\xE9\tfr-CA\r\nFrench\tfr\nFRENCH\tother\r\n\r\nNone");
    EXPECT_EQ(LoadLanguageList(fake.config, u"WebMail", u"default"),
              (std::vector<std::u16string>{u"\u00C9t\u00E9", u"French", u"FRENCH", u"", u"None"}));
    EXPECT_EQ(Abbreviation(fake, u"french"), u"fr");
    EXPECT_EQ(Abbreviation(fake, u"\u00C9T\u00C9"), u"fr-CA");
    EXPECT_EQ(Abbreviation(fake, u"none"), u"");
    EXPECT_EQ(Abbreviation(fake, u"German"), u"");
}

}  // namespace
}  // namespace cvlang
