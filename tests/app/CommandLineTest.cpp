#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

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

TEST(CommandLine, WithoutApplicationOrBaseTheArgumentsAreInvalid) {
    for (const char16_t* line : {u"   ", u"WebMail", u"WebMail  default.net", u" WebMail x"}) {
        FakeProgram fake;
        EXPECT_EQ(RunCommandLine(fake.program, line), ExitStatus::InvalidArguments);
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        const UserMessage& box = fake.messages.shown[0];
        EXPECT_EQ(box.text, u"Invalid arguments");
        EXPECT_EQ(box.title, u"CVLangTranslator");
        EXPECT_TRUE(box.buttons == MessageButtons::Ok && box.icon == MessageIcon::None);
    }
}

}  // namespace
}  // namespace cvlang
