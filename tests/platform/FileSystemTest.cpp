#include "platform/FileSystem.h"

#include <gtest/gtest.h>

#include "platform/FileCopy.h"
#include "platform/FolderCopy.h"
#include "platform/FolderListing.h"
#include "support/Files.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

TEST(FileSystem, ReadingTellsAMissingFileFromAMissingFolder) {
    const TemporaryFolder folder;
    FileContent content;
    PutFile(folder / "a.txt", "bytes");
    EXPECT_EQ(ReadFile(folder / "a.txt", content), FileStatus::Okay);
    EXPECT_EQ(content.Bytes(), "bytes");
    EXPECT_EQ(ReadFile(folder / "b.txt", content), FileStatus::NotFound);
    EXPECT_EQ(ReadFile(folder / "none" / "b.txt", content), FileStatus::OtherError);
    EXPECT_EQ(ReadFile(folder.Path(), content), FileStatus::OtherError);
}

TEST(FileSystem, RenamingNeitherReplacesAFileNorMovesAFolder) {
    const TemporaryFolder folder;
    PutFile(folder / "new", "new");
    PutFile(folder / "old", "old");
    EXPECT_FALSE(RenameFile(folder / "new", folder / "old"));
    EXPECT_TRUE(RemoveFile(folder / "old"));
    EXPECT_TRUE(RenameFile(folder / "new", folder / "old"));
    EXPECT_EQ(FileBytes(folder / "old"), "new");
    SetReadOnly(folder / "old", true);
    EXPECT_FALSE(RemoveFile(folder / "old"));
    ASSERT_TRUE(CreateFolder(folder / "folder"));
    EXPECT_FALSE(RenameFile(folder / "folder", folder / "other"));
}

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

TEST(FileSystem, ACopyReplacesReadOnlyFilesAndMayClearTheAttribute) {
    const TemporaryFolder folder;
    PutFile(folder / "from" / "page", "fresh");
    PutFile(folder / "to" / "page", "stale and longer");
    SetReadOnly(folder / "from" / "page", true);
    SetReadOnly(folder / "to" / "page", true);
    const Folder from(folder / "from");
    const Folder to(folder / "to");
    EXPECT_TRUE(CopyOneFile(from, "page", to, {"page", true}, CopiedAttributes::Kept));
    EXPECT_EQ(FileBytes(folder / "to" / "page"), "fresh");
    EXPECT_TRUE(IsReadOnly(folder / "to" / "page"));
    EXPECT_TRUE(CopyOneFile(from, "page", to, {"page", true}, CopiedAttributes::Archive));
    EXPECT_FALSE(IsReadOnly(folder / "to" / "page"));
    EXPECT_FALSE(CopyOneFile(from, "none", to, {"page", true}, CopiedAttributes::Kept));
}

TEST(FileSystem, LargeFilesAreCopiedWhole) {
    const TemporaryFolder folder;
    const Folder place(folder.Path());
    for (const std::size_t size : {131072U, 200001U}) {
        const std::string bytes(size, 'x');
        PutFile(folder / "large", bytes);
        EXPECT_TRUE(CopyOneFile(place, "large", place, {"copy", true}, CopiedAttributes::Kept));
        EXPECT_EQ(FileBytes(folder / "copy"), bytes);
    }
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
