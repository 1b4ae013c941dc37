#include "translation/TokenMapFile.h"

#include <gtest/gtest.h>

#include "support/FakeProgram.h"

namespace cvlang {
namespace {

constexpr char kFrench[] = "WebMail-default-tokens-fr.map";

TEST(TokenMapFile, LinesAreLoadedAtTheirNumbersAndTheFirstWithExactlyTheTokenIsFound) {
    using Texts = std::vector<std::u16string>;
    const FakeProgram fake;
    PutFile(kFrench, Utf16Bytes(u"[CV_A] \tblank\r\n\r\n[cv_a]\tcase\r\n[CV_A]\t1\t2\r\n[CV_A]") +
                         "b");  // an odd byte at the end
    for (const std::size_t held : {std::size_t{1}, std::size_t{10}}) {
        Texts tokens(held, u"held");
        Texts values(held, u"held");
        LoadTokens(fake.config, u"WebMail", u"default", u"German", tokens, values);
        EXPECT_EQ(tokens, Texts(held, u"held"));  // as no file is there
        LoadTokens(fake.config, u"WebMail", u"default", u"French", tokens, values);
        EXPECT_EQ(tokens, (Texts{u"held", u"[CV_A] ", u"", u"[cv_a]", u"[CV_A]", u"[CV_A]"}));
        EXPECT_EQ(values, (Texts{u"held", u"blank", u"", u"case", u"1", u""}));
    }
    for (const auto& [language, value] : {std::pair{u"French", u"1"}, {u"German", u""}}) {
        EXPECT_EQ(
            GetTokenValue(fake.config, u"WebMail", u"[CV_A]: Hello [x]: y", u"default", language),
            value);
    }
}

}  // namespace
}  // namespace cvlang
