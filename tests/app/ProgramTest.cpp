// What the program does without a display: its command line and its servers.
#include <gmock/gmock.h>

#include <cstdlib>

#include "app/CommandLine.h"
#include "app/MakerServices.h"
#include "support/FakeProgram.h"

namespace cvlang::tests {

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

}  // namespace cvlang::tests
