#include "generation/ContentTree.h"

#include <gmock/gmock.h>

#include "generation/PageTranslator.h"
#include "support/FakeProgram.h"

namespace cvlang::tests {

namespace fs = std::filesystem;

const std::string kMark = "\xEF\xBB\xBF";
const std::string kSource = "\r\n[CV_TXT-A] [CV_TXT-NONE]\r\n";
const std::string kTranslated = kMark + "valeur [CV_TXT-NONE]";

const Selection kFrench{u"WebMail", u"default.net", u"French"};

/// WebMail default.net with a French map file; the reference folder is the test's to fill.
class ContentTree : public testing::Test {
  protected:
    ContentTree() {
        PutFile("WebMail-default.net-lang.txt", "French\tfr\r\nZulu\tzu\r\n");
        PutFile("WebMail-default.net-tokens-fr.map",
                Utf16Bytes(u"[CV_TXT-A]\tvaleur\r\n[CV_TXT-B]\tl'\u00E9\u0800\r\n"));
    }

    bool Apply(const std::u16string& language = u"French") {
        return ApplyTranslation(fake.program, u"WebMail", u"default.net", language);
    }

    FakeProgram fake;
    const fs::path lang = fake.folder / "NETWebMail" / "default" / "lang";
    const fs::path sys = lang / "SYS";
    const fs::path fr = lang / "fr";
};

TEST_F(ContentTree, PagesOfAllKindsAreTranslatedAtAnyDepthAndOtherFilesCopied) {
    // The last name is that of the file which is there already, if it is spelt otherwise.
    const std::tuple<fs::path, std::string, std::string, fs::path> files[] = {
        {"a.asp", kSource, kTranslated, "A.Asp"},
        {"Default.aspx", kMark + "\xE9[CV_TXT-A]", kMark + "\xE9valeur", ""},
        {"c.ASCX", "[CV_TXT-B]", kMark + "l'\xC3\xA9\xE0\xA0\x80", ""},
        {"s.Js", "[CV_TXT-B]", kMark + "l\\'\xC3\xA9\xE0\xA0\x80", ""},
        {"m.xml", "\r\n", kMark, ""},
        {"in/deep/d.asp", kSource, kTranslated, "In/deep/D.asp"},
        {".asp", kSource, kTranslated, ""},
        {"x.asp.bak", kSource, kSource, ""},
        {"logo.gif", kSource, kSource, "LOGO.gif"},
        {"large", std::string(131072, 'x'), std::string(131072, 'x'), ""},
        {"larger", std::string(200001, 'x'), std::string(200001, 'x'), "Larger"},
        {"in/x.jsp", kSource, kSource, "In/x.jsp"}};
    for (const auto& [name, source, result, existing] : files) {
        PutFile(sys / name, source);
        SetReadOnly(sys / name, true);
        if (!existing.empty())
            PutFile(fr / existing, std::string(300000, 's'));
    }
    for (int run = 0; run < 2; ++run) {
        EXPECT_TRUE(Apply());
        for (const auto& [name, source, result, existing] : files) {
            const fs::path written = fr / (existing.empty() ? name : existing);
            EXPECT_EQ(FileBytes(written), result) << name;
            EXPECT_EQ(FileBytes(sys / name), source) << name;
            EXPECT_EQ(IsReadOnly(written), name.has_parent_path() && result == kSource) << name;
        }
    }
    EXPECT_EQ(fake.progress.steps, fake.progress.expected);
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_EQ(fake.ErrorLog(), "(no file)");
}

TEST_F(ContentTree, StalePagesAreTranslatedTooWithTheMapFileOfTheNamesInUse) {
    fake.registry.numbers.clear();
    PutFile(lang / "EN" / "a.asp", "\n[CV_TXT-A]\n");
    PutFile(fr / "stale.asp", "[CV_TXT-A]");
    for (const std::string text : {"[CV_TXT-A]", "old"}) {  // without a map file, and with one
        Apply();
        EXPECT_EQ(FileBytes(fr / "a.asp"), kMark + text);
        EXPECT_EQ(FileBytes(fr / "stale.asp"), kMark + text);
        PutFile("WebMail-default.net-tokens.fr", Utf16Bytes(u"[CV_TXT-A]\told"));
    }
}

TEST_F(ContentTree, AReferenceFolderInsideTheTreeIsMirroredAndNothingIsTranslatedTwice) {
    const std::string page = "a\r\n\r\n";
    for (const char* name : {"in/SYS/a.asp", "in/SYS/x/SYS/b.asp", "unmirrored/SYS/c.asp"})
        PutFile(sys / name, page);
    fs::create_directories(sys / "in" / "ZU" / "x" / "ZU");
    Apply(u"Zulu");
    // Translated twice, the pages would lose their second line's end too.
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "ZU" / "a.asp"), kMark + "a\r\n");
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "ZU" / "x" / "ZU" / "b.asp"), kMark + "a\r\n");
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "SYS" / "a.asp"), page);
    EXPECT_FALSE(fs::exists(lang / "zu" / "unmirrored" / "ZU"));
}

TEST_F(ContentTree, WithoutAnAbbreviationTheRootItselfIsTheLanguagesFolder) {
    PutFile("WebMail-default.net-tokens-.map", Utf16Bytes(u"[CV_TXT-A]\tno name"));
    PutFile(sys / "a.asp", "[CV_TXT-A]");
    EXPECT_TRUE(Apply(u"Klingon"));
    EXPECT_EQ(FileBytes(lang / "a.asp"), kMark + "no name");
}

TEST_F(ContentTree, TheQuestionIsAskedOnlyOfAUserWhoHasPagesToLose) {
    PutFile(sys / "a.asp", "fresh");
    fake.messages.answer = MessageAnswer::No;
    std::size_t asked = 0;
    for (const auto& [noPrompt, isAsked] :
         {std::pair{0, false}, {1, false}, {0, true}, {0, true}, {0, false}}) {
        EXPECT_EQ(PrepareLanguageFolder(fake.program, kFrench, noPrompt), !isAsked || asked == 1);
        EXPECT_EQ(FileBytes(fr / "a.asp"), isAsked && asked == 0 ? "own" : "fresh");
        asked += isAsked ? 1 : 0;
        EXPECT_EQ(fake.messages.shown.size(), asked);
        PutFile(fr / "a.asp", "own");
        fake.messages.answer = asked == 1 ? MessageAnswer::Yes : MessageAnswer::No;
        fake.program.unattended = asked == 2;
    }
    EXPECT_EQ(fake.messages.shown.at(0).text,
              u"Web Content for this Language already exists, do you wish to overwrite it?");
}

TEST_F(ContentTree, DebugModeTracesEveryTokenWithItsCountOverAllRuns) {
    fake.program.tokenUseCounts = {0, 5, 7, 9};
    fs::create_directory("trace");
    PutFile(sys / "a.asp", "[CV_TXT-A][CV_TXT-A]\r\n[CV_TXT-A]");
    Apply();
    EXPECT_FALSE(fs::exists("trace/CVTrans.log"));
    fake.registry.strings[u"DebugMode"] = u"True";
    Apply();
    const std::string time = Utf16ToAnsi(FormatDateAndTime(FakeProgram::FixedClock())) + "\t";
    EXPECT_EQ(FileBytes("trace/CVTrans.log"),
              time + "[CV_TXT-A]\t9\r\n" + time + "[CV_TXT-B]\t7\r\n");
    EXPECT_EQ(fake.program.tokenUseCounts.size(), 4U);
}

TEST_F(ContentTree, LinksAreFollowedInTheReferenceFolderUnlessTheyLeadBackAndNeverElsewhere) {
    const fs::path outside = fake.folder / "outside", elsewhere = fake.folder / "elsewhere";
    PutFile(sys / "shared" / "c.asp", "fresh");
    PutFile(elsewhere / "b.asp", "[CV_TXT-A]");
    PutFile(outside / "c.asp", "\r\n[CV_TXT-A]");
    fs::create_directories(fr);
    std::error_code failed;
    for (const auto& [target, link] : {std::pair{elsewhere, sys / "linked"},
                                       {fake.folder.Path(), sys / "back"},
                                       {sys, elsewhere / "round"},
                                       {outside, fr / "shared"}})
        fs::create_directory_symlink(target, link, failed);
    for (const char* name : {"copied.asp", "copied.gif"})
        PutFile(sys / name, "[CV_TXT-A]");
    for (const char* name : {"copied.asp", "copied.gif", "hard.asp"})
        fs::create_hard_link(outside / "c.asp", fr / name, failed);
    fs::create_symlink(outside / "c.asp", fr / "soft.asp", failed);
    if (failed)
        GTEST_SKIP() << "this system makes no links: " << failed.message();
    Apply();
    for (const char* name : {"copied.asp", "hard.asp", "soft.asp", "linked/b.asp"})
        EXPECT_EQ(FileBytes(fr / name), kMark + "valeur") << name;
    EXPECT_FALSE(fs::exists(fr / "back"));
    EXPECT_FALSE(fs::exists(fr / "linked" / "round"));
    EXPECT_EQ(FileBytes(fr / "copied.gif"), "[CV_TXT-A]");
    EXPECT_EQ(FileBytes(outside / "c.asp"), "\r\n[CV_TXT-A]");
}

TEST_F(ContentTree, AFolderIsNotCopiedOverAFileWhoseNameDiffersOnlyInCase) {
    PutFile(sys / "in", "file");
    if (std::error_code failed; !fs::create_directory(sys / "In", failed))
        GTEST_SKIP() << "letter case does not matter on this file system";
    PutFile(sys / "In" / "a.asp", kSource);
    for (int run = 0; run < 2; ++run) {
        Apply();
        EXPECT_EQ(FileBytes(fr / "in"), "file");
        EXPECT_FALSE(fs::exists(fr / "In"));
    }
}

TEST_F(ContentTree, OnlyAScriptFileIsScriptThroughoutAndAMissingPageIsLogged) {
    PageTranslator pages(fake.program, FindLanguageFolders(fake.config, kFrench),
                         {u"", u"[CV_TXT-A]"}, {u"", u"'"});
    for (const auto& [name, aware, result] :
         {std::tuple{"X.Js", true, "\\'"}, {"x.js", false, "'"}, {"xjs", true, "'"}}) {
        PutFile(name, "[CV_TXT-A]");
        pages.TranslateFile(fake.folder / name, aware);
        EXPECT_EQ(FileBytes(name), kMark + result) << name;
    }
    pages.TranslateFile(fake.folder / "none.asp", true);
    EXPECT_THAT(fake.ErrorLog(), testing::EndsWith("\tError - could not find asp source: " +
                                                   (fake.folder / "none.asp").string() + "\r\n"));
}

TEST(LanguageFolders, EveryApplicationAndBaseHasItsPlace) {
    // Paths, for which all separators are alike.
    const std::tuple<std::u16string, std::u16string, std::u16string, fs::path> cases[] = {
        {u"src", u"WEBMAIL", u"Kesto.NET", u"src/WebMail/base/Kesto.NET/lang"},
        {u"src", u"netwebmail", u"zephra", u"src/WebAdmin/base/zephra/lang"},
        {u"", u"WebMail", u"default.net", u"/NETWebMail/default/lang"},
        {u"", u"WebMail", u"ENTERPRISE.net", u"/NETWebMail/Enterprise/lang"},
        {u"", u"webmail", u"zephra.net", u"/NETWebMail/Zephra/lang"},
        {u"", u"webmail", u"Kesto.NET", u"/NETWebMail/Kesto/lang"},
        {u"", u"WebAdmin", u"default.net", u"/NETWebAdmin/default/lang"},
        {u"", u"WebAdmin", u"enterprise.net", u"/NETWebAdmin/enterprise/lang"},
        {u"", u"anything", u"zephra.net", u"/NETWebAdmin/Zephra/lang"},
        {u"", u"", u"kesto.net", u"/NETWebAdmin/Kesto/lang"},
        {u"", u"WebMail", u"default", u""}};
    FakeRegistry registry;
    const Configuration config(registry);
    for (const auto& [sourceRoot, application, base, root] : cases) {
        registry.strings[u"Source Root"] = sourceRoot;
        EXPECT_EQ(fs::path(GetLanguageRoot(config, {application, base})), root);
    }
}

}  // namespace cvlang::tests
