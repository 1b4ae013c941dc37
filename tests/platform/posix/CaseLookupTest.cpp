#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "platform/Paths.h"
#include "support/Files.h"

namespace cvlang {
namespace {

TEST(CaseLookup, AnEntryIsFoundAsWindowsWouldFindIt) {
    const TemporaryFolder folder;
    PutFile(folder / "NETWebMail" / "Zephra" / "Page.asp", "page");
    PutFile(folder / "exact.txt", "exact");
    PutFile(folder / "EXACT.txt", "other");
    PutFile(folder / "\xC3\x89t\xC3\xA9.txt", "accents");
    const struct {
        const char* asked;
        const char* found;
    } cases[] = {
        {"netwebmail/ZEPHRA/page.ASP", "NETWebMail/Zephra/Page.asp"},
        {"netwebmail/zephra", "NETWebMail/Zephra"},
        {"netwebmail/new/File.asp", "NETWebMail/new/File.asp"},
        {"EXACT.txt", "EXACT.txt"},
        {"exact.txt", "exact.txt"},
        {"\xC3\xA9T\xC3\x89.TXT", "\xC3\x89t\xC3\xA9.txt"},
        {"none/of/these", "none/of/these"},
    };
    for (const auto& [asked, found] : cases)
        EXPECT_EQ(FindExisting(folder / asked), folder / found) << asked;
    const CurrentFolder current(folder.Path());
    EXPECT_EQ(FindExisting("NETWEBMAIL/zephra"), "NETWebMail/Zephra");
    EXPECT_TRUE(EntryExists(folder / "netwebmail"));
    FileContent content;
    EXPECT_EQ(ReadFile(folder / "NETWEBMAIL" / "zephra" / "PAGE.asp", content), FileStatus::Okay);
}

}  // namespace
}  // namespace cvlang
