#include "generation/ContentTree.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

const std::string kMark = "\xEF\xBB\xBF";

/// WebMail default.net with a French map file; the reference folder is the test's to fill.
class ContentTree : public testing::Test {
  protected:
    ContentTree() {
        PutFile(fake.folder / "WebMail-default.net-lang.txt",
                "French\tfr\r\nEmpty\t\r\nOwn\ten\r\n");
        PutFile(fake.folder / "WebMail-default.net-tokens-fr.map",
                Utf16Bytes(u"[CV_TXT-A]\tvaleur\r\n[CV_TXT-B]\tb\r\n"));
    }

    bool Apply(std::u16string_view language = u"French") {
        return ApplyTranslation(fake.program, u"WebMail", u"default.net", language);
    }

    FakeProgram fake;
    fs::path lang = fake.folder / "NETWebMail" / "default" / "lang";
};

TEST_F(ContentTree, PagesOfAllKindsAreTranslatedAtAnyDepthAndOtherFilesCopied) {
    const std::string source = "\r\n[CV_TXT-A] [CV_TXT-NONE]\r\n";
    const std::string translated = kMark + "valeur [CV_TXT-NONE]";
    const char* pages[] = {"a.asp", "Default.aspx",  "c.ASCX", "s.Js",
                           "m.xml", "in/deep/d.asp", ".asp"};
    const char* others[] = {"web.config", "x.asp.bak", "logo.gif", "in/aspx", "in/x.jsp"};
    for (const char* name : pages)
        PutFile(lang / "SYS" / name, source);
    for (const char* name : others)
        PutFile(lang / "SYS" / name, source);
    for (const char* name : {"a.asp", "in/deep/d.asp", "logo.gif"})
        SetReadOnly(lang / "SYS" / name, true);
    for (int run = 0; run < 2; ++run) {
        EXPECT_TRUE(Apply());
        for (const char* name : pages) {
            EXPECT_EQ(FileBytes(lang / "fr" / name), translated) << name;
            EXPECT_EQ(FileBytes(lang / "SYS" / name), source) << name;
            EXPECT_FALSE(IsReadOnly(lang / "fr" / name)) << name;
        }
        for (const char* name : others)
            EXPECT_EQ(FileBytes(lang / "fr" / name), source) << name;
        EXPECT_FALSE(IsReadOnly(lang / "fr" / "logo.gif"));
    }
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_EQ(fake.ErrorLog(), "(no file)");
}

TEST_F(ContentTree, StalePagesStayAndAreTranslatedTooWithTheMapFileOfTheNamesInUse) {
    fake.registry.numbers.clear();
    PutFile(lang / "EN" / "a.asp", "\n[CV_TXT-A]\n");
    PutFile(lang / "fr" / "stale.asp", "[CV_TXT-A]");
    PutFile(lang / "fr" / "stale.txt", "[CV_TXT-A]");
    for (const std::string text : {"[CV_TXT-A]", "old"}) {  // without a map file, and with one
        Apply();
        EXPECT_EQ(FileBytes(lang / "fr" / "a.asp"), kMark + text);
        EXPECT_EQ(FileBytes(lang / "fr" / "stale.asp"), kMark + text);
        EXPECT_EQ(FileBytes(lang / "fr" / "stale.txt"), "[CV_TXT-A]");
        PutFile(fake.folder / "WebMail-default.net-tokens.fr", Utf16Bytes(u"[CV_TXT-A]\told"));
    }
}

TEST_F(ContentTree, AReferenceFolderInsideTheTreeIsMirroredAndNothingIsTranslatedTwice) {
    PutFile(fake.folder / "WebMail-default.net-lang.txt", "Zulu\tzu");
    PutFile(lang / "SYS" / "in" / "SYS" / "a.asp", "a\r\n\r\n");
    fs::create_directories(lang / "SYS" / "in" / "ZU");
    Apply(u"Zulu");
    // Translated twice, the page would lose its second line's end too.
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "ZU" / "a.asp"), kMark + "a\r\n");
    EXPECT_EQ(FileBytes(lang / "zu" / "in" / "SYS" / "a.asp"), "a\r\n\r\n");
}

TEST_F(ContentTree, WithoutAnAbbreviationTheRootItselfIsTheLanguagesFolder) {
    PutFile(fake.folder / "WebMail-default.net-tokens-.map", Utf16Bytes(u"[CV_TXT-A]\tno name"));
    PutFile(lang / "SYS" / "a.asp", "[CV_TXT-A]");
    EXPECT_TRUE(Apply(u"Klingon"));
    EXPECT_EQ(FileBytes(lang / "a.asp"), kMark + "no name");
}

TEST_F(ContentTree, TheQuestionIsAskedOnlyOfAUserWhoHasPagesToLose) {
    const auto prepare = [this](int noPrompt, MessageAnswer answer) {
        fake.messages.answers = {answer};
        fake.messages.shown.clear();
        return PrepareLanguageFolder(fake.program, u"WebMail", u"default.net", u"French", noPrompt);
    };
    PutFile(lang / "SYS" / "a.asp", "fresh");
    EXPECT_TRUE(prepare(0, MessageAnswer::No));
    EXPECT_TRUE(prepare(1, MessageAnswer::No));
    EXPECT_TRUE(fake.messages.shown.empty());
    PutFile(lang / "fr" / "a.asp", "own");
    EXPECT_FALSE(prepare(0, MessageAnswer::No));
    EXPECT_EQ(FileBytes(lang / "fr" / "a.asp"), "own");
    ASSERT_EQ(fake.messages.shown.size(), 1U);
    const UserMessage& question = fake.messages.shown[0];
    EXPECT_TRUE(question.buttons == MessageButtons::YesNo &&
                question.icon == MessageIcon::Question);
    EXPECT_EQ(question.text,
              u"Web Content for this Language already exists, do you wish to overwrite it?");
    EXPECT_TRUE(prepare(0, MessageAnswer::Yes));
    EXPECT_EQ(FileBytes(lang / "fr" / "a.asp"), "fresh");
    fake.program.unattended = true;
    EXPECT_TRUE(prepare(0, MessageAnswer::No));
}

TEST_F(ContentTree, DebugModeTracesEveryTokenWithItsCount) {
    fake.registry.strings[u"DebugMode"] = u"True";
    fs::create_directory(fake.folder / "trace");
    PutFile(lang / "SYS" / "a.asp", "[CV_TXT-A][CV_TXT-A]\r\n[CV_TXT-A]");
    Apply();
    const std::string trace = FileBytes(fake.folder / "trace" / "CVTrans.log");
    EXPECT_NE(trace.find("\t[CV_TXT-A]\t2\r\n"), std::string::npos);
    EXPECT_NE(trace.find("\t[CV_TXT-B]\t0\r\n"), std::string::npos);
    EXPECT_EQ(std::count(trace.begin(), trace.end(), '\n'), 2);
}

TEST_F(ContentTree, LinksToFoldersAreNotWalked) {
    PutFile(fake.folder / "outside" / "a.asp", "[CV_TXT-A]");
    fs::create_directories(lang / "fr");
    std::error_code failed;
    fs::create_directory_symlink(fake.folder / "outside", lang / "fr" / "linked", failed);
    if (failed)
        GTEST_SKIP() << "this system makes no links: " << failed.message();
    Apply();
    EXPECT_EQ(FileBytes(fake.folder / "outside" / "a.asp"), "[CV_TXT-A]");
}

}  // namespace
}  // namespace cvlang
