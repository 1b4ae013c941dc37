#include "translation/KeyedLines.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "translation/TokenUpdate.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

void Rewrite(const FakeProgram& fake, const char* file = "t.map",
             const char* temporary = "_t.map") {
    RewriteKeyedLine(fake.folder / file, fake.folder / temporary, u"k", u"new", fake.logs);
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
        EXPECT_FALSE(fs::exists("_t.map"));
    }
}

TEST(KeyedLines, AFileIsCreatedOrLostOrTheFailureIsTold) {
    const FakeProgram fake;
    PutFile("_t.map", "left over");
    Rewrite(fake);  // a missing file is created without the temporary one
    EXPECT_EQ(FileBytes("t.map"), Utf16Bytes(u"k\tnew\r\n"));
    EXPECT_EQ(FileBytes("_t.map"), "left over");
    EXPECT_EQ(fake.ErrorLog(), "(no file)");
    Rewrite(fake, "none/t.map", "none/_t.map");  // one that cannot be opened is told
    EXPECT_NE(fake.ErrorLog().find("\tUnable to update token\r\n"), std::string::npos);
    fs::remove("_t.map");
    fs::create_directory("_t.map");
    Rewrite(fake);  // a temporary file that cannot be created costs the file
    EXPECT_FALSE(fs::exists("t.map"));
}

TEST(TokenUpdate, SavesUnderTheTokenOfAListEntryInTheSelectedApplicationsFile) {
    FakeProgram fake;
    fake.program.CurrentApplication = u"WebAdmin";
    UpdateToken(fake.program, u"default", u"French", u"[CV_TXT-HELLO]: Hello", u"Bonjour \u3042");
    EXPECT_EQ(FileBytes("WebAdmin-default-tokens-fr.map"),
              Utf16Bytes(u"[CV_TXT-HELLO]\tBonjour \u3042\r\n"));
    fake.registry.numbers[u"Authoring Version"] = 1;
    UpdateToken(fake.program, u"default", u"French", u"[cv_TXT-HELLO]: x", u"old names");
    EXPECT_EQ(FileBytes("WebAdmin-default-tokens.fr"),
              Utf16Bytes(u"[cv_TXT-HELLO]: x\told names\r\n"));
    for (int times = 0; times < 2; ++times)
        UpdateLanguageTable(fake.program, u"WebMail", u"French", u"fr");
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
}

}  // namespace
}  // namespace cvlang
