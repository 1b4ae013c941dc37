#include "translation/TokenMapFile.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

using Texts = std::vector<std::u16string>;

TEST(TokenMapFile, AListEntryIsCutBehindItsTokenAndNothingElseIs) {
    const struct {
        const char16_t* entry;
        const char16_t* token;
    } cases[] = {
        {u"[CV_TXT-HELLO]: Bonjour", u"[CV_TXT-HELLO]"},
        {u"[CV_TXT-HELLO]", u"[CV_TXT-HELLO]"},
        {u"[CV_TXT-A]: x [b]: y", u"[CV_TXT-A]"},
        {u"[cv_TXT-HELLO]: x", u"[cv_TXT-HELLO]: x"},
        {u"HELLO]: x", u"HELLO]: x"},
        {u"", u""},
    };
    for (const auto& [entry, token] : cases)
        EXPECT_EQ(NormaliseToken(entry), token);
}

TEST(TokenMapFile, ALookUpTakesTheFirstLineWithExactlyThatToken) {
    const FakeProgram fake;
    PutFile(
        fake.folder / "WebMail-default-tokens-fr.map",
        Utf16Bytes(u"[CV_TXT-HELLO] \tblank\r\n[CV_TXT-hello]\tcase\r\n"
                   u"[CV_TXT-HELLO]\tBonjour\tmore\r\n[CV_TXT-HELLO]\tsecond\r\n[CV_TXT-NONE]"));
    const auto value = [&fake](std::u16string_view token) {
        return GetTokenValue(fake.config, u"WebMail", token, u"default", u"French");
    };
    EXPECT_EQ(value(u"[CV_TXT-HELLO]: Hello"), u"Bonjour");
    EXPECT_EQ(value(u"[CV_TXT-NONE]"), u"");
    EXPECT_EQ(value(u"[CV_TXT-OTHER]"), u"");
    EXPECT_EQ(GetTokenValue(fake.config, u"WebMail", u"[CV_TXT-HELLO]", u"default", u"German"),
              u"");
}

TEST(TokenMapFile, LinesAreLoadedAtTheirNumbersWhateverTheArraysHeld) {
    const FakeProgram fake;
    const auto file = fake.folder / "WebMail-default-tokens-fr.map";
    const auto load = [&fake](Texts& tokens, Texts& values) {
        LoadTokens(fake.config, u"WebMail", u"default", u"French", tokens, values);
    };
    for (const std::size_t held : {std::size_t{1}, std::size_t{10}}) {
        Texts tokens(held, u"held");
        Texts values(held, u"held");
        std::filesystem::remove(file);
        load(tokens, values);
        PutFile(file, Utf16Bytes(u""));
        load(tokens, values);
        EXPECT_EQ(tokens, Texts(held, u"held"));
        PutFile(file, Utf16Bytes(u"a\t1\t2\r\n\r\na") + "\x62");
        load(tokens, values);
        EXPECT_EQ(tokens, (Texts{u"held", u"a", u"", u"a"}));
        EXPECT_EQ(values, (Texts{u"held", u"1", u"", u""}));
    }
}

TEST(TokenMapFile, PathsFollowTheSelectionAndAreNotGuardedAgainstUnknownLanguages) {
    FakeProgram fake;
    EXPECT_EQ(GetReferenceMapFilePath(fake.config, u"WebMail", u"default.net"),
              fake.folder / "WebMail-default.net-tokens.map");
    EXPECT_EQ(GetLanguageMapFilePath(fake.config, u"WebMail", u"default.net", u"Klingon"),
              fake.folder / "WebMail-default.net-tokens-.map");
    fake.registry.numbers.clear();
    EXPECT_EQ(GetLanguageMapFilePath(fake.config, u"WebMail", u"default.net", u"French"),
              fake.folder / "WebMail-default.net-tokens.fr");
}

}  // namespace
}  // namespace cvlang
