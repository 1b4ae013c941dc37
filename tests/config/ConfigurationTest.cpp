#include "config/Configuration.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

class FailingRegistry : public Registry {
  public:
    std::u16string ReadString(std::u16string_view, std::u16string_view) const override {
        throw std::runtime_error("no registry");
    }
    std::int32_t ReadDword(std::u16string_view, std::u16string_view) const override { return 0; }
};

std::u16string PostOfficesIn(std::u16string directory) {
    return directory + kSeparator + u"POSTOFFICES";
}

TEST(Configuration, MissingValuesReadAsTheirDefaults) {
    const FakeRegistry registry;
    const Configuration config(registry);
    EXPECT_EQ(config.GetProgramDirectory(), u"");
    EXPECT_EQ(config.GetApplicationDirectory(), u"C:\\Program Files\\Corvane\\BIN");
    EXPECT_EQ(config.GetPostOfficesDirectory(), PostOfficesIn(u""));
    EXPECT_EQ(config.GetSourceRoot(), u"");
    EXPECT_EQ(config.GetLocalDomainName(), u"");
    EXPECT_FALSE(config.IsDebugMode());
    EXPECT_EQ(config.GetAuthoringVersion(), 0);
    EXPECT_EQ(config.GetLanguageAuthoring(), 0);
    EXPECT_EQ(config.ReadRegistryString(u"SOFTWARE", u"Any", u"ignored default"), u"");
}

TEST(Configuration, EveryCallReadsAnew) {
    FakeRegistry registry;
    const Configuration config(registry);
    for (const std::u16string& text : {std::u16string(u"first"), std::u16string(u"second")}) {
        for (const char16_t* name :
             {u"Application Directory", u"Data Directory", u"Source Root", u"SMTPLocalDomainName"})
            registry.strings[name] = text;
        EXPECT_EQ(config.GetProgramDirectory(), text);
        EXPECT_EQ(config.GetApplicationDirectory(), text);
        EXPECT_EQ(config.GetPostOfficesDirectory(), PostOfficesIn(text));
        EXPECT_EQ(config.GetSourceRoot(), text);
        EXPECT_EQ(config.GetLocalDomainName(), text);
    }
    for (const std::int32_t number : {1, -3}) {
        registry.numbers[u"Authoring Version"] = number;
        registry.numbers[u"Language Authoring"] = number + 1;
        EXPECT_EQ(config.GetAuthoringVersion(), number);
        EXPECT_EQ(config.GetLanguageAuthoring(), number + 1);
    }
}

TEST(Configuration, DebugModeIsTheExactWordTrue) {
    FakeRegistry registry;
    const Configuration config(registry);
    for (const char16_t* off : {u"true", u"TRUE", u"1", u"True "}) {
        registry.strings[u"DebugMode"] = off;
        EXPECT_FALSE(config.IsDebugMode());
    }
    registry.strings[u"DebugMode"] = u"True";
    EXPECT_TRUE(config.IsDebugMode());
}

TEST(Configuration, AFailingRegistryGivesTheFallbacks) {
    const FailingRegistry registry;
    const Configuration config(registry);
    EXPECT_EQ(config.GetPostOfficesDirectory(), u"Default Value");
    EXPECT_EQ(config.GetLocalDomainName(), u"Default Value");
    EXPECT_EQ(config.GetProgramDirectory(), u"C:\\Program Files\\Corvane\\Bin");
    EXPECT_FALSE(config.IsDebugMode());
}

}  // namespace
}  // namespace cvlang
