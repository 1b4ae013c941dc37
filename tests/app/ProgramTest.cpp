// The built program as a set-up program calls it.
#include <gtest/gtest.h>

#include <cstdlib>

#include "app/CommandLine.h"
#include "support/FakeProgram.h"
#include "support/StoredSettings.h"

namespace cvlang {
namespace {

namespace fs = std::filesystem;

/// Runs the program in the current folder. `arguments` are written as a shell takes them.
int RunProgram(const std::string& arguments) {
    const std::string command = std::string(PROGRAM_FILE) + " " + arguments + " 2> errors.txt";
    const int status = std::system(command.c_str());
    return ExitCodeOf(status);
}

TEST(ProgramFile, GeneratesOneLanguageFromTheSystemsSettings) {
    const TemporaryFolder folder;
    const CurrentFolder current(folder.Path());
    const StoredSettings settings(folder.Path(), folder / "In stallation");
    const fs::path lang = folder / "In stallation" / "NETWebMail" / "Zephra" / "lang";
    PutFile(lang / "SYS" / "Login.aspx", "[CV_TXT-HELLO]\r\n");
    PutFile(folder / "In stallation" / "WebMail-zephra.net-tokens-pt-BR.map",
            Utf16Bytes(u"[CV_TXT-HELLO]\tOl\u00E1\r\n"));
    EXPECT_EQ(RunProgram("WebMail zephra.net \"Brazilian Portuguese\""), 0);
    EXPECT_EQ(FileBytes(lang / "pt-BR" / "Login.aspx"), "\xEF\xBB\xBFOl\xC3\xA1");
    EXPECT_EQ(FileBytes("errors.txt"), "");
}

TEST(ProgramFile, TellsWhatIsWrongByTextAndStatus) {
    const TemporaryFolder folder;
    const CurrentFolder current(folder.Path());
    const StoredSettings settings(folder.Path(), folder / "none");
    EXPECT_EQ(RunProgram("WebMail"), static_cast<int>(ExitStatus::InvalidArguments));
    EXPECT_EQ(FileBytes("errors.txt").substr(0, 17), "Invalid arguments");
    EXPECT_EQ(RunProgram(""), static_cast<int>(ExitStatus::NoWindow));
    EXPECT_NE(FileBytes("errors.txt"), "");
    EXPECT_EQ(RunProgram("WebMail default.net French"), 0);
    EXPECT_EQ(RunProgram(std::string(5000, 'x') + " default.net French"), 0);
}

}  // namespace
}  // namespace cvlang
