#include "config/TextHelpers.h"

#include <gtest/gtest.h>

namespace cvlang {
namespace {

TEST(TextHelpers, SplitFieldTakesTheFieldOfThatNumberOrNothing) {
    const std::tuple<std::u16string, std::u16string, int, std::u16string> cases[] = {
        {u"a\tb\tc", u"\t", 1, u"a"}, {u"a\tb\tc", u"\t", 3, u"c"}, {u"a\tb\tc", u"\t", 4, u""},
        {u"a\tb\tc", u"\t", 0, u""},  {u"a\tb\tc", u"\t", -1, u""}, {u"\t\t\tt\tv", u"\t", 4, u"t"},
        {u"a---b", u"--", 2, u"-b"},  {u"aXbxc", u"x", 2, u"c"},    {u"", u"\t", 1, u""}};
    for (const auto& [text, delimiter, n, field] : cases)
        EXPECT_EQ(SplitField(text, delimiter, n), field);
}

TEST(TextHelpers, CountFieldsStopsAtFifty) {
    for (const auto& [size, fields] : {std::pair{0U, 1}, {2U, 3}, {48U, 49}, {60U, 50}})
        EXPECT_EQ(CountFields(std::u16string(size, u';'), u";"), fields);
}

TEST(TextHelpers, GetStringBetweenNeedsBothMarkersInOrder) {
    EXPECT_EQ(GetStringBetween(u"</a><a>y</a>", u"<a>", u"</a>"), u"y");
    EXPECT_EQ(GetStringBetween(u"</a><a>y", u"<a>", u"</a>"), u"");
}

TEST(TextHelpers, AGuidIsWrittenWithItsShortBytes) {
    const auto guid = [] {
        return std::optional(Guid{0xABC, 1, 0xFFFF, {0, 9, 0x0A, 0x0F, 0x10, 0x1E, 0xA0, 0xFF}});
    };
    EXPECT_EQ(CreateGuidString(guid), u"00000ABC0001FFFF0009AF101EA0FF");
    EXPECT_EQ(CreateGuidString([] { return std::optional<Guid>(); }), u"00000000");
}

}  // namespace
}  // namespace cvlang
