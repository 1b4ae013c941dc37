#include "generation/PageTranslator.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

const std::string kMark = "\xEF\xBB\xBF";
const std::string kPlain = kMark + "l'\xC3\xA9t\xC3\xA9";
const std::string kEscaped = kMark + "l\\'\xC3\xA9t\xC3\xA9";

/// Translates one page of WebMail default.net into French.
void Translate(FakeProgram& fake, const fs::path& page, bool scriptAware = true) {
    PageTranslator pages(fake.program, u"French", u"default.net", u"WebMail",
                         {u"", u"[CV_TXT-TIME]"}, {u"", u"l'\u00E9t\u00E9"});
    pages.TranslateFile(page, scriptAware);
}

TEST(PageTranslator, APageInTheLanguagesFolderIsRewrittenInPlaceBehindOneByteOrderMark) {
    FakeProgram fake;
    const fs::path page = fake.folder / "lang" / "fr" / "x.ASP";
    for (const std::string& mark : {std::string(), kMark}) {
        PutFile(page, mark + "\xE9 [CV_TXT-TIME]\r\n");
        SetReadOnly(page, true);
        Translate(fake, page);
        EXPECT_EQ(FileBytes(page), kMark + "\xE9 l'\xC3\xA9t\xC3\xA9");
        EXPECT_FALSE(IsReadOnly(page));
    }
}

TEST(PageTranslator, OnlyAScriptFileIsScriptThroughoutAndOnlyWhenAskedFor) {
    FakeProgram fake;
    for (const auto& [name, aware, expected] :
         {std::tuple{"X.Js", true, kEscaped}, {"x.js", false, kPlain}, {"xjs", true, kPlain}}) {
        PutFile(name, "[CV_TXT-TIME]");
        Translate(fake, fake.folder / name, aware);
        EXPECT_EQ(FileBytes(name), expected) << name;
    }
}

TEST(PageTranslator, APageOfTheReferenceFolderGoesToItsMirror) {
    FakeProgram fake;
    const auto lang = fake.folder / "lang";
    const std::tuple<int, const char*, const char*> cases[] = {
        {2, "SYS/x.asp", "FR/x.asp"},
        {1, "EN/x.asp", "FR/x.asp"},
        {2, "SYS/sys/SYS/x.asp", "FR/sys/FR/x.asp"},
        {2, "EN/x.asp", "EN/x.asp"}};
    for (const auto& [version, source, destination] : cases) {
        fs::remove_all(lang);
        fake.registry.numbers[u"Authoring Version"] = version;
        PutFile(lang / source, "[CV_TXT-TIME]");
        fs::create_directories((lang / destination).parent_path());
        Translate(fake, (lang / source).make_preferred());
        EXPECT_EQ(FileBytes(lang / destination), kPlain) << source;
    }
    fs::remove_all(lang / "EN");  // without the mirrored folder a page is not produced
    PutFile(lang / "SYS" / "x.asp", "[CV_TXT-TIME]");
    Translate(fake, lang / "SYS" / "x.asp");
    EXPECT_FALSE(fs::exists(lang / "FR"));
}

TEST(PageTranslator, UseCountsGrowFromRunToRunAndAMissingPageIsLogged) {
    FakeProgram fake;
    const fs::path page = fake.folder / "none.asp";
    Translate(fake, page);
    EXPECT_TRUE(fake.ErrorLog().ends_with("\tError - could not find asp source: " + page.string() +
                                          "\r\n"));
    fake.program.tokenUseCounts = {0, 5, 7, 9};
    PutFile("x.asp", "[CV_TXT-TIME][CV_TXT-TIME]\r\n[CV_TXT-TIME]");
    Translate(fake, fake.folder / "x.asp");
    EXPECT_EQ(fake.program.tokenUseCounts, (std::vector<std::int32_t>{0, 7, 7, 9}));
}

}  // namespace
}  // namespace cvlang
