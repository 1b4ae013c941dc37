// What the program does without a display: its command line, its servers, and what the window does
// behind its controls.
#include <gmock/gmock.h>

#include <cstdlib>

#include "app/CommandLine.h"
#include "app/MakerServices.h"
#include "app/Operations.h"
#include "platform/Ansi.h"
#include "support/FakeProgram.h"

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
        EXPECT_THAT(FileBytes("errors.txt"),
                    testing::MatchesRegex("CVLangTranslator " PROGRAM_VERSION
                                          ", usage: CVLangTranslator .*\nInvalid arguments\r?\n"));
    }
    EXPECT_EQ(run(""), ExitStatus::NoWindow);
    EXPECT_EQ(run("WebMail default.net"), ExitStatus::Done);  // an empty language is one, too
    EXPECT_EQ(run(std::string(5000, 'x') + " default.net French"), ExitStatus::Done);
}

using Servers = std::pair<std::u16string, std::u16string>;

/// The two servers that these variables name, each with its port; or what is wrong with them.
Servers NamedServers(const std::string& web, const std::string& mail) {
    SetVariable("CORVANE_DISTRIBUTION_SERVER", web);
    SetVariable("CORVANE_SUBMISSION_SERVER", mail);
    const auto [distribution, submission] = ConfiguredServices();
    EXPECT_EQ(submission.mailbox, u"translations@corvane.example");
    const auto text = [](const std::u16string& host, int port, const std::u16string& fault) {
        return fault.empty() ? host + u" " + AnsiToUtf16(std::to_string(port)) : fault;
    };
    return {text(distribution.host, distribution.port, distribution.fault),
            text(submission.server, submission.port, submission.fault)};
}

TEST(MakerServices, AreTheBuiltInOnesUnlessTheEnvironmentNamesOthers) {
    EXPECT_EQ(NamedServers("", ""), Servers(u"www.corvane.example 80", u"mail.corvane.example 0"));
    EXPECT_EQ(NamedServers("[::1]:8080", "mail-2.example:587"),
              Servers(u"::1 8080", u"mail-2.example 587"));
    EXPECT_EQ(NamedServers("[2001:db8::2]", "[::1]:25"),
              Servers(u"2001:db8::2 80",
                      u"Mail is sent over IPv4 only. Please set CORVANE_SUBMISSION_SERVER to a "
                      u"host name or an IPv4 address."));
    for (const std::string text :
         {"http://host", "host:99999", "host:80x", "host:0", "host:", ":80", "a b", "::1", "[::1",
          "[::1]80", "[::1]:", "[host]", "[]", "host/path", "user@host", "host:80:80"}) {
        const std::u16string start =
            u'"' + AnsiToUtf16(text) + u"\" is not the address of a server. Please set CORVANE_";
        const std::u16string end = u"_SERVER to HOST or HOST:PORT, an IPv6 address in brackets.";
        EXPECT_EQ(NamedServers(text, text),
                  Servers(start + u"DISTRIBUTION" + end, start + u"SUBMISSION" + end));
    }
}

TEST(Operations, BasesAreDetectedByTheirFoldersInAFixedOrder) {
    const FakeProgram fake;
    EXPECT_TRUE(DetectBases(fake.config, kProbedApplication).empty());
    for (const char* name : {"Kesto", "zephra", "ENTERPRISE", "other", "default"})
        PutFile(fake.folder / "NETWebMail" / name, "");
    EXPECT_EQ(DetectBases(fake.config, kProbedApplication),
              (std::vector<std::u16string>{u"default.net", u"enterprise.net", u"zephra.net",
                                           u"kesto.net"}));
}

TEST(Operations, GoesOnBehindTheSelectedEntryAndLooksAtItLast) {
    const std::vector<std::u16string> entries{u"[CV_A]: \u00C9t\u00E9", u"[CV_B]: b", u"[CV_C]: a"};
    const std::tuple<std::optional<std::size_t>, std::u16string, std::optional<std::size_t>>
        cases[] = {{std::nullopt, u"[cv_", 0}, {0, u"[cv_", 1},   {2, u"[cv_", 0},
                   {1, u"\u00E9T\u00C9", 0},   {0, u"\u00E9", 0}, {0, u"none", std::nullopt}};
    for (const auto& [selected, text, found] : cases)
        EXPECT_EQ(FindEntry(entries, selected, text), found);
}

TEST(Operations, ATokenIsUntranslatedWhileItsFirstLineHasNoValue) {
    const FakeProgram fake;
    PutFile("WebMail-default.net-tokens-fr.map",
            Utf16Bytes(u"[CV_A]\ta\r\n[CV_B]\t\r\n[CV_B]\tlater\r\n[CV_D]\td"));
    const std::vector<std::u16string> entries{u"[CV_A]: A", u"[CV_B]: B", u"[CV_C]", u"[CV_D]"};
    const Selection french{u"WebMail", u"default.net", u"French"};
    EXPECT_EQ(FindUntranslated(fake.program, entries, 0, french), 1U);
    EXPECT_EQ(FindUntranslated(fake.program, entries, 1, french), 2U);
    EXPECT_EQ(FindUntranslated(fake.program, entries, 2, french), 1U);
}

TEST(Operations, ApplyingRecordsTheLanguageAndReportsSuccessInAnyCase) {
    FakeProgram fake;
    for (const char16_t* language : {u"French", u"Klingon"})  // the second has no abbreviation
        GenerateLanguage(fake.program, {u"WebMail", u"default.net", language});
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
    EXPECT_EQ(std::pair(fake.progress.begun, fake.progress.ended), std::pair(2, 2));
    EXPECT_EQ(fake.messages.shown.size(), 2U);
}

}  // namespace
}  // namespace cvlang
