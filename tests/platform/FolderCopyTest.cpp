#include "platform/FolderCopy.h"

#include <gtest/gtest.h>

#include "platform/FileSystem.h"
#include "platform/FolderListing.h"
#include "support/Files.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

void Copy(const fs::path& from, const fs::path& to) {
    CreateFolder(to);
    CopyFilesOf(from, to, CopiedAttributes::Archive, [] {});
    CopyFoldersOf(from, to, [] {});
}

TEST(FolderCopy, ANameThatDiffersOnlyInCaseIsWrittenInto) {
    const TemporaryFolder folder;
    PutFile(folder / "SYS" / "login.asp", "fresh");
    PutFile(folder / "SYS" / "images" / "x.gif", "fresh");
    PutFile(folder / "fr" / "LOGIN.ASP", "stale");
    PutFile(folder / "fr" / "Images" / "X.gif", "stale");
    Copy(folder / "SYS", folder / "fr");
    EXPECT_EQ(FileBytes(folder / "fr" / "LOGIN.ASP"), "fresh");
    EXPECT_EQ(FileBytes(folder / "fr" / "Images" / "X.gif"), "fresh");
}

TEST(FolderCopy, OntoItselfChangesNoByteAndIntoItselfEnds) {
    const TemporaryFolder folder;
    PutFile(folder / "EN" / "a.asp", "a");
    PutFile(folder / "EN" / "in" / "b.asp", "b");
    SetReadOnly(folder / "EN" / "a.asp", true);
    Copy(folder / "EN", folder / "EN");
    EXPECT_EQ(FileBytes(folder / "EN" / "a.asp"), "a");
    EXPECT_EQ(FileBytes(folder / "EN" / "in" / "b.asp"), "b");
    EXPECT_FALSE(IsReadOnly(folder / "EN" / "a.asp"));
    Copy(folder / "EN", folder / "EN" / "fr");
    EXPECT_EQ(FileBytes(folder / "EN" / "fr" / "in" / "b.asp"), "b");
    EXPECT_FALSE(fs::exists(folder / "EN" / "fr" / "fr" / "fr"));
}

TEST(FolderCopy, LinksAreFollowedInTheOriginalUnlessTheyLeadBackAndNeverInTheTarget) {
    const TemporaryFolder folder;
    PutFile(folder / "SYS" / "a.asp", "a");
    PutFile(folder / "SYS" / "shared" / "c.gif", "fresh");
    PutFile(folder / "elsewhere" / "b.gif", "b");
    PutFile(folder / "outside" / "c.gif", "untouched");
    std::error_code failed;
    fs::create_directory_symlink(folder / "elsewhere", folder / "SYS" / "linked", failed);
    fs::create_directory_symlink(folder.Path(), folder / "SYS" / "back", failed);
    fs::create_directory_symlink(folder / "SYS", folder / "elsewhere" / "round", failed);
    fs::create_directories(folder / "fr");
    fs::create_directory_symlink(folder / "outside", folder / "fr" / "shared", failed);
    if (failed)
        GTEST_SKIP() << "this system makes no links: " << failed.message();
    Copy(folder / "SYS", folder / "fr");
    EXPECT_EQ(FileBytes(folder / "fr" / "linked" / "b.gif"), "b");
    EXPECT_FALSE(fs::exists(folder / "fr" / "back"));
    EXPECT_FALSE(fs::exists(folder / "fr" / "linked" / "round"));
    EXPECT_EQ(FileBytes(folder / "outside" / "c.gif"), "untouched");
}

}  // namespace
}  // namespace cvlang
