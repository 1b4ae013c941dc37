#include "translation/KeyedLines.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "translation/TokenUpdate.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

TEST(KeyedLines, EveryLineOfTheKeyGetsTheValueAndAllOthersStay) {
    const struct {
        const char16_t* before;
        const char16_t* after;
    } cases[] = {
        {u"a\t1\r\nk\told\tmore\r\nb\r\n", u"a\t1\r\nk\tnew\r\nb\r\n"},
        {u"k\t1\r\nk\t2\r\n", u"k\tnew\r\nk\tnew\r\n"},
        {u"k  \t1\r\n", u"k  \tnew\r\n"},
        {u"k", u"k\tnew\r\n"},
        {u"K\t1\r\n k\t2\r\n", u"K\t1\r\n k\t2\r\nk\tnew\r\n"},
        {u"\r\na\nb\r", u"\r\na\r\nb\r\nk\tnew\r\n"},
        {u"", u"k\tnew\r\n"},
    };
    const FakeProgram fake;
    for (const auto& [before, after] : cases) {
        PutFile(fake.folder / "t.map", Utf16Bytes(before));
        PutFile(fake.folder / "_t.map", "left over");
        RewriteKeyedLine(fake.folder / "t.map", fake.folder / "_t.map", u"k", u"new", fake.logs);
        EXPECT_EQ(FileBytes(fake.folder / "t.map"), Utf16Bytes(after));
        EXPECT_FALSE(fs::exists(fake.folder / "_t.map"));
    }
}

TEST(KeyedLines, AFileThatIsMissingIsCreatedWithoutATemporaryOne) {
    const FakeProgram fake;
    PutFile(fake.folder / "_t.map", "left over");
    RewriteKeyedLine(fake.folder / "t.map", fake.folder / "_t.map", u"k", u"", fake.logs);
    EXPECT_EQ(FileBytes(fake.folder / "t.map"), Utf16Bytes(u"k\t\r\n"));
    EXPECT_EQ(FileBytes(fake.folder / "_t.map"), "left over");
    EXPECT_EQ(fake.ErrorLog(), "(no file)");
}

TEST(KeyedLines, AFileThatCannotBeOpenedLeavesOneLineInTheLog) {
    const FakeProgram fake;
    RewriteKeyedLine(fake.folder / "none" / "t.map", fake.folder / "none" / "_t.map", u"k", u"v",
                     fake.logs);
    EXPECT_NE(fake.ErrorLog().find("\tUnable to update token\r\n"), std::string::npos);
    EXPECT_FALSE(fs::exists(fake.folder / "none"));
}

TEST(KeyedLines, ATemporaryFileThatCannotBeCreatedCostsTheFile) {
    const FakeProgram fake;
    PutFile(fake.folder / "t.map", Utf16Bytes(u"k\told\r\n"));
    fs::create_directory(fake.folder / "_t.map");
    RewriteKeyedLine(fake.folder / "t.map", fake.folder / "_t.map", u"k", u"new", fake.logs);
    EXPECT_FALSE(fs::exists(fake.folder / "t.map"));
    EXPECT_TRUE(fs::is_directory(fake.folder / "_t.map"));
}

TEST(TokenUpdate, SavesUnderTheTokenOfAListEntryInTheSelectedApplicationsFile) {
    FakeProgram fake;
    fake.program.CurrentApplication = u"WebAdmin";
    UpdateToken(fake.program, u"default", u"French", u"[CV_TXT-HELLO]: Hello", u"Bonjour \u3042");
    EXPECT_EQ(FileBytes(fake.folder / "WebAdmin-default-tokens-fr.map"),
              Utf16Bytes(u"[CV_TXT-HELLO]\tBonjour \u3042\r\n"));
    fake.registry.numbers[u"Authoring Version"] = 1;
    UpdateToken(fake.program, u"default", u"French", u"[cv_TXT-HELLO]: x", u"old names");
    EXPECT_EQ(FileBytes(fake.folder / "WebAdmin-default-tokens.fr"),
              Utf16Bytes(u"[cv_TXT-HELLO]: x\told names\r\n"));
}

}  // namespace
}  // namespace cvlang
