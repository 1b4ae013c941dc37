#include "translation/TokenMapFile.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

using Texts = std::vector<std::u16string>;

constexpr char kFile[] = "WebMail-default-tokens-fr.map";

TEST(TokenMapFile, ALookUpTakesTheFirstLineWithExactlyThatToken) {
    const FakeProgram fake;
    PutFile(kFile,
            Utf16Bytes(u"[CV_TXT-HELLO] \tblank\r\n[CV_TXT-hello]\tcase\r\n"
                       u"[CV_TXT-HELLO]\tBonjour\tmore\r\n[CV_TXT-HELLO]\t2\r\n[CV_TXT-NONE]"));
    const auto value = [&fake](std::u16string_view token,
                               std::u16string_view language = u"French") {
        return GetTokenValue(fake.config, u"WebMail", token, u"default", language);
    };
    EXPECT_EQ(value(u"[CV_TXT-HELLO]: Hello [x]: y"), u"Bonjour");
    EXPECT_EQ(value(u"[CV_TXT-NONE]"), u"");
    EXPECT_EQ(value(u"[CV_TXT-OTHER]"), u"");
    EXPECT_EQ(value(u"[CV_TXT-HELLO]", u"German"), u"");
}

TEST(TokenMapFile, LinesAreLoadedAtTheirNumbersWhateverTheArraysHeld) {
    const FakeProgram fake;
    for (const std::size_t held : {std::size_t{1}, std::size_t{10}}) {
        Texts tokens(held, u"held");
        Texts values(held, u"held");
        const auto load = [&] {
            LoadTokens(fake.config, u"WebMail", u"default", u"French", tokens, values);
        };
        std::filesystem::remove(kFile);
        load();
        PutFile(kFile, Utf16Bytes(u""));
        load();
        EXPECT_EQ(tokens, Texts(held, u"held"));
        PutFile(kFile, Utf16Bytes(u"a\t1\t2\r\n\r\na") + "b");  // an odd byte at the end
        load();
        EXPECT_EQ(tokens, (Texts{u"held", u"a", u"", u"a"}));
        EXPECT_EQ(values, (Texts{u"held", u"1", u"", u""}));
    }
}

}  // namespace
}  // namespace cvlang
