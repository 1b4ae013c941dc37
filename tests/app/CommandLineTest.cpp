#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(CommandLine, QuotedFieldsAreTakenByNumber) {
    const struct {
        const char16_t* text;
        int n;
        const char16_t* field;
    } cases[] = {
        {u"WebMail default.net French", 1, u"WebMail"},
        {u"WebMail default.net French", 3, u"French"},
        {u"WebMail default.net French", 4, u""},
        {u"WebMail default.net French", 0, u""},
        {u"WebMail default.net \"Brazilian Portuguese\"", 3, u"Brazilian Portuguese"},
        {u"\"Web Mail\" x", 1, u"Web Mail"},
        {u"\"Web Mail\" x", 2, u"x"},
        {u"W\"eb M\"ail x", 1, u"Web Mail"},
        {u"a  b", 2, u""},
        {u"a  b", 3, u"b"},
        {u" a", 1, u""},
        {u"a \"b c", 2, u"b c"},
        {u"a \"\" c", 2, u""},
        {u"", 1, u""},
    };
    for (const auto& [text, n, field] : cases)
        EXPECT_EQ(GetQuotedField(text, u' ', n), field);
    EXPECT_EQ(GetQuotedField(u"a\"b\"c", u'"', 2), u"b");
}

TEST(CommandLine, WithoutApplicationOrBaseTheArgumentsAreInvalid) {
    for (const char16_t* line :
         {u"   ", u"WebMail", u"WebMail  default.net", u" WebMail default.net"}) {
        FakeProgram fake;
        EXPECT_EQ(RunCommandLine(fake.program, line), ExitStatus::InvalidArguments);
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.shown[0].text, u"Invalid arguments");
        EXPECT_EQ(fake.messages.shown[0].title, u"CVLangTranslator");
        EXPECT_EQ(fake.messages.shown[0].buttons, MessageButtons::Ok);
        EXPECT_EQ(fake.messages.shown[0].icon, MessageIcon::None);
    }
}

TEST(CommandLine, AnEmptyLanguageIsPassedOn) {
    FakeProgram fake;
    PutFile(fake.folder / "WebMail-default.net-lang.txt", "x\ty\r\n\tnone\r\n");
    PutFile(fake.folder / "NETWebMail" / "default" / "lang" / "SYS" / "a.asp", "a");
    EXPECT_EQ(RunCommandLine(fake.program, u"WebMail default.net"), ExitStatus::Generated);
    EXPECT_EQ(FileBytes(fake.folder / "NETWebMail" / "default" / "lang" / "none" / "a.asp"),
              "\xEF\xBB\xBF"
              "a");
    EXPECT_TRUE(fake.messages.shown.empty());
    EXPECT_TRUE(fake.program.unattended);
}

}  // namespace
}  // namespace cvlang
