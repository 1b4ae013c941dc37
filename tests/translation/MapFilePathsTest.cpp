#include "translation/MapFilePaths.h"

#include <gtest/gtest.h>

#include "platform/Paths.h"

namespace cvlang {
namespace {

TEST(MapFilePaths, AreBuiltForBothGenerations) {
    const MapFileBase base{u"dir", u"WebMail", u"default"};
    const auto in = [](const char* name) { return std::filesystem::path("dir") / name; };
    EXPECT_EQ(ReferenceMapFile(base), in("WebMail-default-tokens.map"));
    EXPECT_EQ(LanguageListFile(base), in("WebMail-default-lang.txt"));
    for (const int old : {-1, 0, 1}) {
        EXPECT_EQ(LanguageMapFile(base, u"fr", old), in("WebMail-default-tokens.fr"));
        EXPECT_EQ(TemporaryMapFile(base, u"fr", old), in("WebMail-default-_tokens.fr"));
    }
    for (const int fresh : {2, 3}) {
        EXPECT_EQ(LanguageMapFile(base, u"fr", fresh), in("WebMail-default-tokens-fr.map"));
        EXPECT_EQ(TemporaryMapFile(base, u"fr", fresh), in("WebMail-default-_tokens-fr.map"));
        EXPECT_EQ(LanguageMapFile(base, u"", fresh), in("WebMail-default-tokens-.map"));
    }
    EXPECT_EQ(LanguageTableFile(u"dir"), in("LANGUAGES.TAB"));
    EXPECT_EQ(TemporaryLanguageTableFile(u"dir"), in("_LANGUAGES.TAB"));
    EXPECT_EQ(TextFromPath(LanguageTableFile(u"")),
              std::u16string(1, kSeparator) + u"LANGUAGES.TAB");
}

}  // namespace
}  // namespace cvlang
