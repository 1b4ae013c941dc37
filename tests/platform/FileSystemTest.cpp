#include "platform/FileSystem.h"

#include <gtest/gtest.h>

#include "platform/FolderCopy.h"
#include "platform/FolderListing.h"
#include "support/Files.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

TEST(FileSystem, AFolderIsListedInTheOrderOfADirectoryWindow) {
    const TemporaryFolder folder;
    for (const char* name : {"b.asp", "C.asp", "a.asp", "Abc.asp"})
        PutFile(folder / name, "");
    for (const char* name : {"two", "One"})
        CreateFolder(folder / name);
    const FolderListing listing = ListFolder(folder.Path());
    EXPECT_EQ(listing.files, (std::vector<fs::path>{"a.asp", "Abc.asp", "b.asp", "C.asp"}));
    EXPECT_EQ(listing.folders, (std::vector<fs::path>{"One", "two"}));
}

TEST(FileSystem, AFolderCopiedOntoItselfChangesNoByteAndIntoItselfEnds) {
    const TemporaryFolder folder;
    const fs::path en = folder / "EN";
    PutFile(en / "a.asp", "a");
    PutFile(en / "in" / "b.asp", "b");
    SetReadOnly(en / "a.asp", true);
    for (const fs::path& to : {en, en / "fr"}) {
        CreateFolder(to);
        CopyFilesOf(en, to, CopiedAttributes::Archive, [] {});
        CopyFoldersOf(en, to, [] {});
        EXPECT_EQ(FileBytes(to / "a.asp"), "a");
        EXPECT_EQ(FileBytes(to / "in" / "b.asp"), "b");
        EXPECT_FALSE(IsReadOnly(to / "a.asp"));
    }
    EXPECT_FALSE(fs::exists(en / "fr" / "fr" / "fr"));
}

}  // namespace
}  // namespace cvlang
