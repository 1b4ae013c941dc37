#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstdlib>
#include <ctime>
#include <vector>

#include "platform/FileCopy.h"
#include "platform/Process.h"
#include "platform/Registry.h"
#include "platform/SystemInformation.h"
#include "platform/posix/RegistryExport.h"
#include "support/FakeProgram.h"
#include "text/Unicode.h"

namespace cvlang::tests {

namespace fs = std::filesystem;
using testing::_, testing::FieldsAre;

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
    FileContent content;
    EXPECT_EQ(ReadFile("NETWEBMAIL/zephra/PAGE.asp", content), FileStatus::Okay);
}

TEST(FileSystem, OpeningAPipeDoesNotWaitAndAReadOnlyFileIsUnchangedForRootToo) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo("pipe", 0666), 0);
    FileContent content;
    EXPECT_EQ(ReadFile("pipe", content), FileStatus::OtherError);
    PutFile("locked", "mine");
    SetReadOnly("locked", true);
    for (const char* file : {"pipe", "locked"}) {
        EXPECT_TRUE(WriteFile(file, "x")) << file;
        EXPECT_TRUE(AppendToFile(file, "x")) << file;
    }
    EXPECT_FALSE(RemoveFile("locked"));
    EXPECT_EQ(FileBytes("locked"), "mine");
}

TEST(FileCopy, NothingChangesThroughALinkAndNoFileIsMoreOpenThanWhatWasRead) {
    const TemporaryFolder folder;
    const Folder here(folder.Path());
    const auto mode = [](const char* name) { return int(fs::status(name).permissions()); };
    for (const char* name : {"private", "shared", "own"}) {
        PutFile(name, "mine");
        fs::permissions(name, fs::perms(name == std::string("own") ? 0640 : 0400));
    }
    fs::create_symlink("private", "soft");
    fs::create_hard_link("shared", "hard");
    FileContent content;
    ReadFile("private", content);
    const std::tuple<const char*, bool, bool, int> cases[] = {
        {"soft", false, false, 0400},  // it appeared meanwhile
        {"hard", false, false, 0400}, {"soft", true, true, 0600}, {"hard", true, true, 0600},
        {"new", false, true, 0600},   {"own", true, true, 0640}};
    for (const auto& [name, exists, written, after] : cases) {
        const fs::path file = name;
        ResetAttributes(here, file);
        const CopiedFile copy{here, "private", here, {file, exists}, CopiedAttributes::Archive};
        EXPECT_EQ(WritePage(copy, "page", content), written) << name;
        EXPECT_EQ(mode(name), after) << name;
        EXPECT_EQ(mode("private") | mode("shared"), 0400) << name;
        EXPECT_EQ(FileBytes("private") + FileBytes("shared"), "minemine") << name;
    }
}

TEST(SystemRegistry, ReadsTheNamedFileUnlessItIsAPipeOrLarge) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo("pipe", 0666), 0);
    PutFile("large", "[HKLM\\Key]\n\"Value\"=\"text\"\n");
    for (const auto& [file, text] : {std::pair{"LARGE", u"text"}, {"pipe", u""}, {"large", u""}}) {
        setenv("CORVANE_REGISTRY", file, 1);
        EXPECT_EQ(SystemRegistry()->ReadString(u"Key", u"Value"), text) << file;
        std::filesystem::resize_file("large", 1U << 30);
    }
}

/// What a command of the system writes.
std::string OutputOf(const std::string& command) {
    EXPECT_EQ(std::system((command + " | tr -d '\\n' >out").c_str()), 0);
    return FileBytes("out");
}

TEST(SystemInformation, IsThatOfTheSystem) {
    const TemporaryFolder folder;
    const std::string before = OutputOf("date '+%F %T'");
    const std::string now = Utf16ToUtf8(FormatDateAndTime(SystemClock()));
    EXPECT_GE(now, before);
    EXPECT_LE(now, OutputOf("date '+%F %T'"));
    EXPECT_EQ(FormatDateAndTime({2004, 3, 7, 9, 5, 30}), u"2004-03-07 09:05:30");
    EXPECT_EQ(Utf16ToUtf8(GetLocalComputerName()), OutputOf("uname -n"));
    EXPECT_TRUE(std::filesystem::exists(ExecutableFolder() / "test_platform"));
    EXPECT_EQ(NewGuid()->third >> 12, 4);
    EXPECT_NE(NewGuid()->first, NewGuid()->first);
}

TEST(TimeZone, CountsMinutesWestAndSummerTime) {
    const std::tuple<const char*, int, int, ZoneTime> cases[] = {
        {"AAA5:30", 330, 0, ZoneTime::Standard},
        {"AAA-2", -120, 0, ZoneTime::Standard},
        {"AAA-1BBB,0/0,J365/25", -60, -60, ZoneTime::Daylight}};  // summer all year
    for (const auto& [zone, bias, daylightBias, time] : cases) {
        setenv("TZ", zone, 1);
        EXPECT_THAT(SystemTimeZone(), FieldsAre(bias, _, daylightBias, time)) << zone;
    }
    unsetenv("TZ");
    tzset();
}

TEST(CommandLineText, IsRebuiltFromTheArguments) {
    const std::pair<std::vector<const char*>, std::u16string> cases[] = {
        {{"program"}, u""}, {{"program", "a b", "", "\xC3\xA9"}, u"\"a b\" \"\" \u00E9"}};
    for (const auto& [arguments, text] : cases)
        EXPECT_EQ(CommandLineText(static_cast<int>(arguments.size()), arguments.data()), text);
}

constexpr char kKey[] = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\n";

RegistryValue Value(const std::string& file) {
    return FindInRegistryExport(file, u"SOFTWARE\\Corvane\\Corvane", u"Value");
}

TEST(RegistryExport, IsReadAsTheImporterOfWindowsReadsIt) {
    const std::tuple<const char*, std::optional<std::u16string>, std::optional<std::int32_t>>
        cases[] = {
            {R"("Value"="C:\\Program Files" ; comment)", u"C:\\Program Files", {}},
            {R"("Value"="say \"hello\";\n")", u"say \"hello\";\n", {}},
            {"\"Value\"= hex(2):41,00,\\ ;\n;\n\n  42, 00,00,00 ;", u"AB", {}},
            {"\"Value\"=hex(1):41,00,42,\\\n00", u"AB", {}},
            {"\"Value\"=hex(2):41,00,\\\n\"Value\"=\"continues nothing\"", {}, {}},
            {R"("Value"=hex(2):41,00,42)", {}, {}},
            {R"("Value"=hex:41,00,00,00)", {}, {}},
            {R"("Value"="ends in backslash\)", {}, {}},
            {"\"Value\"=\"first\"\n\"Value\"=\"second\"", u"second", {}},
            {"\"Value\"=\"first\"\n\"Value\"=-;", {}, {}},
            {"\"Value\"=\"first\"\n[-HKLM\\SOFTWARE\\corvane]", {}, {}},
            {"\"Value\"=\"first\"\n[HKEY_CURRENT_USER\\X]\n\"Value\"=\"other\"", u"first", {}},
            {"[X]\n [HKLM\\Software\\\\CORVANE\\Corvane\\] ;\n\"Value\"=\"a\"", u"a", {}},
            {R"("Value"=dword: 00000002;)", {}, 2},
            {R"("Value"=dword:ffffffff)", {}, -1},
            {R"("Value"=dword:000000002)", {}, {}},
            {R"("Value"=hex(4):02,01,00,80)", {}, -0x7FFFFEFE}};
    for (const auto& [lines, text, number] : cases)
        EXPECT_THAT(Value(std::string(kKey) + lines + "\n"), FieldsAre(text, number)) << lines;
}

TEST(RegistryExport, ReadsUtf16Utf8AndAnsiWithAndWithoutAMark) {
    const std::u16string text = Utf8ToUtf16(kKey) + u"\"Value\"=\"\u00E9\"\r\n";
    const std::string bytes = "\"Value\"=hex(2):e9,00\r\n";
    for (const std::string& file :
         {Utf16Bytes(text), Utf16Bytes(text).substr(2), Utf16ToUtf8(text),
          "\xEF\xBB\xBF" + Utf16ToUtf8(text), "REGEDIT4\r\n" + Utf16ToAnsi(text),
          "REGEDIT4\r\n" + std::string(kKey) + bytes})
        EXPECT_EQ(Value(file).text, u"\u00E9") << file;
}

// exported.reg was written by Wine's "reg export" for the values that are expected here.
TEST(RegistryExport, WhatAnExporterWroteIsReadBack) {
    constexpr std::u16string_view kCharacters = u"aB ;\"\\\u00E9\u3042\u017E\u00DF,=[]-";
    std::u16string text;
    for (std::size_t i = 0; i < 300; ++i)
        text += kCharacters[i * i / 3 % kCharacters.size()];
    const std::string file = FileBytes(EXPORTED_SETTINGS);
    for (const char16_t* name : {u"Expandable", u"String"})
        EXPECT_EQ(FindInRegistryExport(file, u"SOFTWARE\\Corvane\\Corvane", name).text, text);
}

}  // namespace cvlang::tests
