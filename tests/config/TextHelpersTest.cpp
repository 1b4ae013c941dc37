#include "config/TextHelpers.h"

#include <gtest/gtest.h>

namespace cvlang {
namespace {

TEST(TextHelpers, SplitFieldTakesTheFieldOfThatNumberOrNothing) {
    const struct {
        const char16_t* text;
        const char16_t* delimiter;
        int n;
        const char16_t* field;
    } cases[] = {
        {u"a\tb\tc", u"\t", 1, u"a"}, {u"a\tb\tc", u"\t", 3, u"c"}, {u"a\tb\tc", u"\t", 4, u""},
        {u"a\tb\tc", u"\t", 0, u""},  {u"a\tb\tc", u"\t", -1, u""}, {u"\t\t\tt\tv", u"\t", 4, u"t"},
        {u"a--b", u"--", 2, u"b"},    {u"a---b", u"--", 2, u"-b"},  {u"aXbxc", u"x", 2, u"c"},
        {u"", u"\t", 1, u""},         {u"whole", u"", 1, u"whole"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(SplitField(c.text, c.delimiter, c.n), c.field);
}

TEST(TextHelpers, CountFieldsStopsAtFifty) {
    EXPECT_EQ(CountFields(u"", u";"), 1);
    EXPECT_EQ(CountFields(u"one", u";"), 1);
    EXPECT_EQ(CountFields(u"a;b;", u";"), 3);
    for (const auto& [delimiters, fields] : {std::pair{48, 49}, {49, 50}, {50, 50}, {60, 50}})
        EXPECT_EQ(CountFields(std::u16string(static_cast<std::size_t>(delimiters), u';'), u";"),
                  fields);
}

TEST(TextHelpers, GetStringBetweenNeedsBothMarkersInOrder) {
    EXPECT_EQ(GetStringBetween(u"x<a>y</a>", u"<a>", u"</a>"), u"y");
    EXPECT_EQ(GetStringBetween(u"</a><a>y</a>", u"<a>", u"</a>"), u"y");
    EXPECT_EQ(GetStringBetween(u"||", u"|", u"|"), u"");
    EXPECT_EQ(GetStringBetween(u"<a>y", u"<a>", u"</a>"), u"");
    EXPECT_EQ(GetStringBetween(u"<A>y</a>", u"<a>", u"</a>"), u"");
}

TEST(TextHelpers, ZeroPadFillsUpToTheWidth) {
    EXPECT_EQ(ZeroPad(4, 1), u"000");
    EXPECT_EQ(ZeroPad(4, 4), u"");
    EXPECT_EQ(ZeroPad(2, 5), u"");
}

TEST(TextHelpers, AGuidIsWrittenWithItsShortBytes) {
    const auto guid = [] {
        return std::optional(
            Guid{0xABC, 0x1, 0xFFFF, {0x00, 0x09, 0x0A, 0x0F, 0x10, 0x1E, 0xA0, 0xFF}});
    };
    EXPECT_EQ(CreateGuidString(guid), u"00000ABC0001FFFF0009AF101EA0FF");
    EXPECT_EQ(CreateGuidString([] { return std::optional<Guid>(); }), u"00000000");
    EXPECT_NE(CreateGuidString(), CreateGuidString());
}

TEST(TextHelpers, TheComputerHasAName) {
    EXPECT_NE(GetLocalComputerName(), u"");
}

}  // namespace
}  // namespace cvlang
