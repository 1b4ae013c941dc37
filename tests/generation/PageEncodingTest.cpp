#include "generation/PageEncoding.h"

#include <gtest/gtest.h>

namespace cvlang {
namespace {

TEST(PageEncoding, EveryCodeIsEncodedByItself) {
    const struct {
        std::u16string text;
        std::string bytes;
    } cases[] = {
        {u"A\u007F", "A\x7F"},
        {u"\u0080\u00E9\u07FF", "\xC2\x80\xC3\xA9\xDF\xBF"},
        {u"\u0800\u3042\uFFFF", "\xE0\xA0\x80\xE3\x81\x82\xEF\xBF\xBF"},
        {u"\U0001F600", "\xED\xA0\xBD\xED\xB8\x80"},
        {u"\xD800", "\xED\xA0\x80"},
    };
    for (const auto& [text, bytes] : cases) {
        std::vector<std::uint8_t> output(50, 'x');
        EXPECT_EQ(EncodeUTF8(text, output), bytes.size());
        EXPECT_EQ(BytesToString(output), bytes);
    }
    std::vector<std::uint8_t> untouched{1, 2};
    EXPECT_EQ(EncodeUTF8(u"", untouched), 0U);
    EXPECT_EQ(untouched.size(), 2U);
}

TEST(PageEncoding, QuotesAreEscapedAndBackslashesAreNotDoubled) {
    EXPECT_EQ(EscapeForScript("l'heure"), "l\\'heure");
    EXPECT_EQ(EscapeForScript("'\"\\'"), "\\'\\\"\\\\'");
    EXPECT_EQ(EscapeForScript("C:\\"), "C:\\");
}

}  // namespace
}  // namespace cvlang
