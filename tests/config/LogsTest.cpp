#include "config/Logs.h"

#include <gtest/gtest.h>

#include "platform/Ansi.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(Logs, GrowLineByLineAndTellWhenTheErrorLogCannotBeWritten) {
    FakeProgram fake;
    const std::string start = Utf16ToAnsi(FormatDateAndTime(FakeProgram::FixedClock())) + "\t";
    std::filesystem::create_directory("trace");
    for (const char16_t* message : {u"one \u00E9 \u3042", u"two"}) {
        EXPECT_FALSE(fake.logs.LogTranslationEvent(message));
        fake.logs.LogTranslationTrace(message);
    }
    EXPECT_EQ(fake.ErrorLog(), start + "one \xE9 ?\r\n" + start + "two\r\n");
    EXPECT_EQ(FileBytes("trace/CVTrans.log"), fake.ErrorLog());
    std::filesystem::remove("LangPort.log");
    std::filesystem::create_directory("LangPort.log");
    EXPECT_TRUE(fake.logs.LogTranslationEvent(u"lost"));
}

}  // namespace
}  // namespace cvlang
