// What the program does without a display: its command line, its servers, and what the window does
// behind its controls.
#include <gmock/gmock.h>

#include <cstdlib>

#include "app/CommandLine.h"
#include "app/MakerServices.h"
#include "app/Operations.h"
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
        const auto fault = [&text](std::u16string_view service) {
            std::u16string told = u'"' + AnsiToUtf16(text);
            told.append(u"\" is not the address of a server. Please set CORVANE_").append(service);
            return told.append(u"_SERVER to HOST or HOST:PORT, an IPv6 address in brackets.");
        };
        EXPECT_EQ(NamedServers(text, text), Servers(fault(u"DISTRIBUTION"), fault(u"SUBMISSION")));
    }
}

TEST(Operations, BasesAreDetectedByTheirEntriesInAFixedOrder) {
    const FakeProgram fake;
    EXPECT_TRUE(DetectBases(fake.config, kProbedApplication).empty());
    for (const char* entry : {"Kesto", "zephra", "ENTERPRISE/file", "other", "default"})
        PutFile(fake.folder / "NETWebMail" / entry, "");
    EXPECT_THAT(
        DetectBases(fake.config, kProbedApplication),
        testing::ElementsAre(u"default.net", u"enterprise.net", u"zephra.net", u"kesto.net"));
}

const Selection kSelection{u"WebMail", u"default.net", u"French"};
const std::string kFrenchMap = "WebMail-default.net-tokens-fr.map";

TEST(Operations, ASearchGoesOnBehindTheSelectedEntryAndEndsWithIt) {
    const FakeProgram fake;
    PutFile(kFrenchMap, Utf16Bytes(u"[CV_A]\ta\r\n[CV_B]\t\r\n[CV_B]\tlater\r\n[CV_D]\td"));
    const std::vector<std::u16string> entries{u"[CV_A]: \u00C9", u"[CV_B]", u"[CV_C]", u"[CV_D]"};
    using Index = std::optional<std::size_t>;
    const std::tuple<Index, std::u16string, Index> texts[] = {
        {{}, u"[cv_", 0}, {0, u"[cv_", 1}, {3, u"[cv_", 0}, {0, u"\u00E9", 0}, {0, u"none", {}}};
    for (const auto& [selected, text, found] : texts)
        EXPECT_EQ(FindEntry(entries, selected, text), found);
    for (const auto& [selected, found] : {std::pair<Index, Index>{{}, 1}, {1, 2}, {2, 1}, {3, 1}})
        EXPECT_EQ(FindUntranslated(fake.program, entries, selected, kSelection), found);
}

TEST(Operations, ApplyingRecordsTheLanguageAndReportsSuccessInAnyCase) {
    FakeProgram fake;
    PutFile(fake.folder / "NETWebMail/default/lang/SYS/Login.aspx", "[CV_TXT-A]");
    PutFile(kFrenchMap, Utf16Bytes(u"[CV_TXT-A]\tSalut\r\n"));
    for (const char16_t* language : {u"French", u"Klingon", u""})  // two are unknown
        GenerateLanguage(fake.program, {u"WebMail", u"default.net", language});
    EXPECT_EQ(fake.messages.shown.size(), 3U);
    EXPECT_EQ(FileBytes("NETWebMail/default/lang/fr/Login.aspx"), "\xEF\xBB\xBFSalut");
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
    EXPECT_EQ(std::pair(fake.progress.begun, fake.progress.ended), std::pair(3, 3));
}

TEST(Operations, ATokenIsRemovedAsFarAsTheAnswerAllows) {
    FakeProgram fake;
    const auto reference = fake.folder / "WebMail-default.net-tokens.map";
    const auto hasToken = [](const std::filesystem::path& file) {
        return FileBytes(file).find('A') != std::string::npos;
    };
    using enum MessageAnswer;
    // Whether the reference map file exists, and which file has the token afterwards.
    const std::tuple<bool, MessageAnswer, bool, bool> cases[] = {{true, Cancel, true, true},
                                                                 {true, No, false, true},
                                                                 {true, Yes, false, false},
                                                                 {false, Yes, false, true}};
    for (const auto& [exists, answer, inReference, inLanguage] : cases) {
        PutFile(reference, Utf16Bytes(u"\t\t\t[CV_A]\ta\r\n"));
        PutFile(kFrenchMap, Utf16Bytes(u"[CV_A]\ta\r\n"));
        if (!exists)
            std::filesystem::remove(reference);
        fake.messages.answer = answer;
        RemoveTokenAsAsked(fake.messages, reference, u"[CV_A]");
        EXPECT_EQ(std::pair(hasToken(reference), hasToken(kFrenchMap)),
                  std::pair(inReference, inLanguage));
    }
}

}  // namespace cvlang::tests
