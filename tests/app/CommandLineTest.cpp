// The built program as a set-up program calls it, and how it takes its arguments apart.
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "app/CommandLine.h"
#include "support/Files.h"

namespace cvlang {
namespace {

/// Runs the program on an installation. `arguments` are written as a shell takes them.
int RunProgram(const std::filesystem::path& installation, const std::string& arguments) {
    PutFile("registry.reg",
            "Windows Registry Editor Version 5.00\r\n\r\n"
            "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n"
            "\"Application Directory\"=\"" +
                installation.generic_string() + "\"\r\n\"Authoring Version\"=dword:2\r\n");
    const std::string command = RUN_PROGRAM + arguments + " 2> errors.txt";
    const int status = std::system(command.c_str());
    return status > 255 ? status / 256 : status;  // as Linux and as Windows report it
}

TEST(CommandLine, QuotedFieldsAreTakenByNumber) {
    const std::pair<std::u16string, std::vector<std::u16string>> cases[] = {
        {u"WebMail default.net French", {u"", u"WebMail", u"default.net", u"French", u""}},
        {u"x \"Brazilian Portuguese\"", {u"", u"x", u"Brazilian Portuguese"}},
        {u"W\"eb M\"ail x", {u"", u"Web Mail", u"x"}},
        {u"a  b", {u"", u"a", u"", u"b"}},
        {u" a \"\" c", {u"", u"", u"a", u"", u"c"}},
        {u"a \"b c", {u"", u"a", u"b c"}},
        {u"", {u"", u""}}};
    for (const auto& [text, fields] : cases) {
        for (std::size_t n = 0; n < fields.size(); ++n)
            EXPECT_EQ(GetQuotedField(text, u' ', static_cast<int>(n)), fields[n]);
    }
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
        const std::string usage = "CVLangTranslator " PROGRAM_VERSION ", usage: CVLangTranslator ";
        EXPECT_EQ(FileBytes("errors.txt").substr(0, usage.size()), usage);
        EXPECT_NE(FileBytes("errors.txt").find("\nInvalid arguments"), std::string::npos);
    }
    EXPECT_EQ(run(""), ExitStatus::NoWindow);
    EXPECT_EQ(run("WebMail default.net"), ExitStatus::Done);  // an empty language is one, too
    EXPECT_EQ(run(std::string(5000, 'x') + " default.net French"), ExitStatus::Done);
}

}  // namespace
}  // namespace cvlang
