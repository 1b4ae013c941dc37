#include "translation/KeyedLines.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

const std::string kOld = Utf16Bytes(u"k\told\r\n");
const std::string kNew = Utf16Bytes(u"k\tnew\r\n");
const std::string kNoFile = "(no file)";

void Rewrite(const FakeProgram& fake, const fs::path& folder = ".") {
    RewriteKeyedLine(folder / "t.map", folder / "_t.map", u"k", u"new", fake.logs);
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

    EXPECT_EQ(fake.ErrorLog(), kNoFile);
    Rewrite(fake, "none");  // only a file that cannot be opened is told
    EXPECT_TRUE(fake.ErrorLog().ends_with("\tUnable to update token\r\n"));
}

}  // namespace
}  // namespace cvlang
