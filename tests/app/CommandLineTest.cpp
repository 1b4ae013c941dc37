// The built program as a set-up program calls it, and how it takes its arguments apart.
#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>

#include "app/CommandLine.h"
#include "support/Files.h"

namespace cvlang {
namespace {

/// Runs the program on an installation. `arguments` are written as a shell takes them.
int RunProgram(const std::filesystem::path& installation, const std::string& arguments) {
    const std::string escaped =
        std::regex_replace(installation.string(), std::regex(R"(\\)"), R"(\\)");
    PutFile("registry.reg",
            "Windows Registry Editor Version 5.00\r\n\r\n"
            "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n"
            "\"Application Directory\"=\"" +
                escaped + "\"\r\n\"Authoring Version\"=dword:2\r\n");
    const std::string command = WITH_SETTINGS PROGRAM_FILE " " + arguments + " 2> errors.txt";
    const int status = std::system(command.c_str());
    return status > 255 ? status / 256 : status;  // as Linux and as Windows report it
}

TEST(CommandLine, QuotedFieldsAreTakenByNumber) {
    const std::tuple<std::u16string, int, std::u16string> cases[] = {
        {u"WebMail default.net French", 1, u"WebMail"},
        {u"WebMail default.net French", 3, u"French"},
        {u"WebMail default.net French", 4, u""},
        {u"WebMail default.net French", 0, u""},
        {u"x \"Brazilian Portuguese\"", 2, u"Brazilian Portuguese"},
        {u"\"Web Mail\" x", 2, u"x"},
        {u"W\"eb M\"ail x", 1, u"Web Mail"},
        {u"a  b", 2, u""},
        {u"a  b", 3, u"b"},
        {u" a", 1, u""},
        {u"a \"b c", 2, u"b c"},
        {u"a \"\" c", 2, u""},
        {u"", 1, u""}};
    for (const auto& [text, n, field] : cases)
        EXPECT_EQ(GetQuotedField(text, u' ', n), field);
}

TEST(ProgramFile, GeneratesOneLanguageFromTheSystemsSettings) {
    const TemporaryFolder folder;
    const auto installation = folder / "In stallation";
    const auto lang = installation / "NETWebMail" / "Zephra" / "lang";
    PutFile(lang / "SYS" / "Login.aspx", "[CV_TXT-HELLO]\r\n");
    PutFile(installation / "WebMail-zephra.net-tokens-pt-BR.map",
            Utf16Bytes(u"[CV_TXT-HELLO]\tOl\u00E1\r\n"));
    EXPECT_EQ(RunProgram(installation, "WebMail zephra.net \"Brazilian Portuguese\""), 0);
    EXPECT_EQ(FileBytes(lang / "pt-BR" / "Login.aspx"), "\xEF\xBB\xBFOl\xC3\xA1");
    EXPECT_EQ(FileBytes("errors.txt"), "");
}

TEST(ProgramFile, TellsWhatIsWrongByTextAndStatus) {
    const TemporaryFolder folder;
    const auto run = [&](const std::string& arguments) {
        return static_cast<ExitStatus>(RunProgram(folder / "none", arguments));
    };
    for (const char* arguments : {"WebMail", "WebMail \"\" French", "\"\" default.net French"}) {
        EXPECT_EQ(run(arguments), ExitStatus::InvalidArguments);
        EXPECT_EQ(FileBytes("errors.txt").substr(0, 17), "Invalid arguments");
    }
    EXPECT_EQ(run(""), ExitStatus::NoWindow);
    EXPECT_EQ(run("WebMail default.net"), ExitStatus::Done);  // an empty language is one, too
    EXPECT_EQ(run(std::string(5000, 'x') + " default.net French"), ExitStatus::Done);
}

}  // namespace
}  // namespace cvlang
