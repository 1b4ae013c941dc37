#include "config/Logs.h"

#include <gtest/gtest.h>

#include "platform/Ansi.h"
#include "support/FakeProgram.h"

namespace cvlang {
namespace {

std::string Line(std::string_view message) {
    std::string line = Utf16ToAnsi(FormatDateAndTime(FakeProgram::FixedClock()));
    return line.append("\t").append(message).append("\r\n");
}

TEST(Logs, GrowLineByLineTheErrorLogInTheCurrentFolder) {
    const TemporaryFolder folder;
    Logs logs(FakeProgram::FixedClock, folder / "CVTrans.log");
    const CurrentFolder current(folder.Path());
    EXPECT_FALSE(logs.LogTranslationEvent(u"one \u00E9 \u3042"));
    EXPECT_FALSE(logs.LogTranslationEvent(u"two"));
    logs.LogTranslationTrace(u"one");
    logs.LogTranslationTrace(u"two");
    EXPECT_EQ(FileBytes("LangPort.log"), Line("one \xE9 ?") + Line("two"));
    EXPECT_EQ(FileBytes(folder / "CVTrans.log"), Line("one") + Line("two"));
}

TEST(Logs, AnErrorLogThatCannotBeWrittenIsTold) {
    const TemporaryFolder folder;
    const CurrentFolder current(folder.Path());
    std::filesystem::create_directory("LangPort.log");
    EXPECT_TRUE(Logs().LogTranslationEvent(u"lost"));
}

}  // namespace
}  // namespace cvlang
