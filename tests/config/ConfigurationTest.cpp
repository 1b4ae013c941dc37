#include "config/Configuration.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

TEST(Configuration, EveryCallReadsAnewAndWhatIsMissingOrFailsReadsAsItsDefault) {
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

}  // namespace
}  // namespace cvlang
