#include <gtest/gtest.h>

#include "support/FakeProgram.h"
#include "text/Strings.h"

namespace cvlang::tests {

TEST(Configuration, EveryCallReadsTheRegistryAndMissingValuesReadAsDefaults) {
    FakeRegistry registry;
    const Configuration config(registry);
    for (const std::u16string text : {u"", u"first", u"second"}) {
        for (const char16_t* name :
             {u"Application Directory", u"Data Directory", u"Source Root", u"SMTPLocalDomainName"})
            registry.strings[name] = text;
        EXPECT_EQ(config.GetProgramDirectory(), text);
        EXPECT_EQ(config.GetApplicationDirectory(),
                  text.empty() ? u"C:\\Program Files\\Corvane\\BIN" : text);
        EXPECT_EQ(config.GetPostOfficesDirectory(), text + kSeparator + u"POSTOFFICES");
        EXPECT_EQ(config.GetSourceRoot(), text);
        EXPECT_EQ(config.GetLocalDomainName(), text);
    }
    registry.numbers[u"Authoring Version"] = -3;
    registry.numbers[u"Language Authoring"] = 1;
    EXPECT_EQ(config.GetAuthoringVersion(), -3);
    EXPECT_EQ(config.GetLanguageAuthoring(), 1);
    EXPECT_EQ(config.ReadRegistryString(u"SOFTWARE", u"Any", u"ignored default"), u"");
    for (const char16_t* text : {u"", u"true", u"True"}) {
        registry.strings[u"DebugMode"] = text;
        EXPECT_EQ(config.IsDebugMode(), registry.strings[u"DebugMode"] == u"True");
    }
    registry.fails = true;
    EXPECT_EQ(config.GetPostOfficesDirectory(), u"Default Value");
    EXPECT_EQ(config.GetLocalDomainName(), u"Default Value");
    EXPECT_EQ(config.GetProgramDirectory(), u"C:\\Program Files\\Corvane\\Bin");
    EXPECT_FALSE(config.IsDebugMode());
}

TEST(Logs, AppendOneLineEachAndReportAnErrorLogThatCannotBeWritten) {
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
    Logs().LogTranslationTrace(u"beside the program");
    EXPECT_TRUE(std::filesystem::remove(ExecutableFolder() / "CVTrans.log"));
}

TEST(TextHelpers, CountFieldsStopsAtFiftyAndGetStringBetweenNeedsBothMarkers) {
    const std::tuple<std::u16string, std::u16string, int, std::u16string> cases[] = {
        {u"a\tb\tc", u"\t", 1, u"a"}, {u"a\tb\tc", u"\t", 3, u"c"}, {u"a\tb\tc", u"\t", 4, u""},
        {u"a\tb\tc", u"\t", 0, u""},  {u"a---b", u"--", 2, u"-b"},  {u"aXbxc", u"x", 2, u"c"}};
    for (const auto& [text, delimiter, n, field] : cases)
        EXPECT_EQ(SplitField(text, delimiter, n), field);
    for (const auto& [size, fields] : {std::pair{0U, 1}, {2U, 3}, {48U, 49}, {60U, 50}})
        EXPECT_EQ(CountFields(std::u16string(size, u';'), u";"), fields);
    EXPECT_EQ(GetStringBetween(u"</a><a>y</a>", u"<a>", u"</a>"), u"y");
    EXPECT_EQ(GetStringBetween(u"</a><a>y", u"<a>", u"</a>"), u"");
}

}  // namespace cvlang::tests
