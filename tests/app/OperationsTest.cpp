// What the window does behind its buttons, without a display.
#include <gtest/gtest.h>

#include "app/Operations.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(ApplicationDiscovery, BasesAreDetectedByTheirFoldersInAFixedOrder) {
    const FakeProgram fake;
    EXPECT_TRUE(DetectBases(fake.config, kProbedApplication).empty());
    for (const char* name : {"Kesto", "zephra", "ENTERPRISE", "other", "default"})
        PutFile(fake.folder / "NETWebMail" / name, "");
    EXPECT_EQ(DetectBases(fake.config, kProbedApplication),
              (std::vector<std::u16string>{u"default.net", u"enterprise.net", u"zephra.net",
                                           u"kesto.net"}));
}

TEST(TokenSearch, GoesOnBehindTheSelectedEntryAndLooksAtItLast) {
    const std::vector<std::u16string> entries{u"[CV_A]: \u00C9t\u00E9", u"[CV_B]: b", u"[CV_C]: a"};
    const std::tuple<std::optional<std::size_t>, std::u16string, std::optional<std::size_t>>
        cases[] = {{std::nullopt, u"[cv_", 0}, {0, u"[cv_", 1},   {2, u"[cv_", 0},
                   {1, u"\u00E9T\u00C9", 0},   {0, u"\u00E9", 0}, {0, u"none", std::nullopt}};
    for (const auto& [selected, text, found] : cases)
        EXPECT_EQ(FindEntry(entries, selected, text), found);
}

TEST(TokenSearch, ATokenIsUntranslatedWhileItsFirstLineHasNoValue) {
    const FakeProgram fake;
    PutFile("WebMail-default.net-tokens-fr.map",
            Utf16Bytes(u"[CV_A]\ta\r\n[CV_B]\t\r\n[CV_B]\tlater\r\n[CV_D]\td"));
    const std::vector<std::u16string> entries{u"[CV_A]: A", u"[CV_B]: B", u"[CV_C]", u"[CV_D]"};
    const Selection french{u"WebMail", u"default.net", u"French"};
    EXPECT_EQ(FindUntranslated(fake.program, entries, 0, french), 1U);
    EXPECT_EQ(FindUntranslated(fake.program, entries, 1, french), 2U);
    EXPECT_EQ(FindUntranslated(fake.program, entries, 2, french), 1U);
}

struct CountingProgress : Progress {
    void Begin() override { ++begun; }
    void End() override { ++ended; }
    int begun = 0;
    int ended = 0;
};

TEST(ApplyCommand, GeneratesRecordsTheLanguageAndReportsSuccessInAnyCase) {
    FakeProgram fake;
    CountingProgress progress;
    fake.program.progress = &progress;
    PutFile("NETWebMail/default/lang/SYS/a.asp", "[CV_TXT-A]");
    PutFile("WebMail-default.net-tokens-fr.map", Utf16Bytes(u"[CV_TXT-A]\ta"));
    GenerateLanguage(fake.program, {u"WebMail", u"default.net", u"French"});
    EXPECT_EQ(FileBytes("NETWebMail/default/lang/fr/a.asp"),
              "\xEF\xBB\xBF"
              "a");
    GenerateLanguage(fake.program,
                     {u"WebMail", u"default.net", u"Klingon"});  // has no abbreviation
    EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
    EXPECT_EQ(progress.begun, 2);
    EXPECT_EQ(progress.ended, 2);
    ASSERT_EQ(fake.messages.shown.size(), 2U);
    EXPECT_EQ(fake.messages.shown[1].text,
              u"Translated web pages were generated sucessfully for Klingon language.");
}

}  // namespace
}  // namespace cvlang
