#include <gtest/gtest.h>

#include <vector>

#include "platform/FileCopy.h"
#include "platform/Paths.h"
#include "platform/Process.h"
#include "support/Files.h"

namespace cvlang {
namespace {

TEST(FindExisting, FindsAnEntryAsWindowsWould) {
    const TemporaryFolder folder;
    PutFile(folder / "NETWebMail" / "Zephra" / "Page.asp", "page");
    PutFile(folder / "exact.txt", "exact");
    PutFile(folder / "EXACT.txt", "other");
    PutFile(folder / "\xC3\x89t\xC3\xA9.txt", "accents");
    const std::pair<const char*, const char*> cases[] = {
        {"netwebmail/ZEPHRA/page.ASP", "NETWebMail/Zephra/Page.asp"},
        {"netwebmail/new/File.asp", "NETWebMail/new/File.asp"},
        {"exact.txt", "exact.txt"},
        {"\xC3\xA9T\xC3\x89.TXT", "\xC3\x89t\xC3\xA9.txt"},
        {"none/of/these", "none/of/these"}};
    for (const auto& [asked, found] : cases)
        EXPECT_EQ(FindExisting(folder / asked), folder / found) << asked;
    EXPECT_EQ(FindExisting("NETWEBMAIL/zephra"), "NETWebMail/Zephra");
    FileContent content;
    EXPECT_EQ(ReadFile("NETWEBMAIL/zephra/PAGE.asp", content), FileStatus::Okay);
}

TEST(FileCopy, AFileOfTwoNamesIsReplacedUnderOneOfThem) {
    const TemporaryFolder folder;
    PutFile(folder / "from" / "a", "fresh");
    PutFile(folder / "outside", "untouched");
    std::filesystem::create_directory(folder / "to");
    std::filesystem::create_hard_link(folder / "outside", folder / "to" / "a");
    EXPECT_TRUE(CopyOneFile(Folder(folder / "from"), "a", Folder(folder / "to"), {"a", true},
                            CopiedAttributes::Kept));
    EXPECT_EQ(FileBytes(folder / "to" / "a"), "fresh");
    EXPECT_EQ(FileBytes(folder / "outside"), "untouched");
}

TEST(CommandLineText, IsRebuiltFromTheArguments) {
    const std::pair<std::vector<const char*>, std::u16string> cases[] = {
        {{"program"}, u""},
        {{"program", "WebMail", "x", "Brazilian Portuguese"},
         u"WebMail x \"Brazilian Portuguese\""},
        {{"program", "WebMail", "", "\xC3\xA9"}, u"WebMail \"\" \u00E9"},
        {{"program", ""}, u"\"\""}};
    for (const auto& [arguments, text] : cases)
        EXPECT_EQ(CommandLineText(static_cast<int>(arguments.size()), arguments.data()), text);
}

}  // namespace
}  // namespace cvlang
