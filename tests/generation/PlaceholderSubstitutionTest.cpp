#include "generation/PlaceholderSubstitution.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>

#include "generation/PlainSubstitution.h"

namespace cvlang::tests {

/// Nothing when the page is given up.
std::optional<plain::Page> Substitute(std::string_view page, const TextArray& tokens,
                                      const TextArray& values, ScriptMode mode) {
    const TokenIndex index(tokens, values);
    std::vector<std::int32_t> useCounts(tokens.size());
    PlaceholderSubstitution substitution(index, useCounts);
    PageText text;
    if (!substitution.Translate(page, mode, text))
        return std::nullopt;
    plain::Page result{std::string(text.View()), useCounts};
    // Once more: pages of one run must not be taken for each other.
    EXPECT_TRUE(substitution.Translate(page, mode, text));
    EXPECT_EQ(text.View(), result.text + result.text);
    for (std::int32_t& count : useCounts)
        count /= 2;
    EXPECT_EQ(useCounts, result.useCounts);
    return result;
}

TEST(PlaceholderSubstitution, MoreTokensThanCanBeNumberedEndAPageAtItsFirstPlaceholder) {
    for (const std::size_t most : {32767U, 32768U}) {
        const TextArray tokens(most + 1, u"[CV_TXT-A]");
        const TextArray values(most + 1);
        EXPECT_EQ(Substitute("x[CV_TXT-A]", tokens, values, ScriptMode::Tracked).has_value(),
                  most == 32767);
        EXPECT_TRUE(Substitute("x[CV_TXT", tokens, values, ScriptMode::Tracked));
    }
}

// Few pieces, so that they meet in every way: tokens within tokens, values that bring or complete
// placeholders, brackets left open, empty and repeated tokens, tokens of any other form; tags on
// both sides of where a look at a block of the page ends, and what only resembles a tag.
const std::u16string kLong = u"[CV_TXT-" + std::u16string(33, u'L');
const std::u16string kFill(35, u'x');
const std::u16string kTags(240, u'<');
const std::u16string kPieces[] = {u"[CV_TXT-A]", u"[CV_TXT-B]", u"[CV_TXT-AB]", u"[CV_TXT-\u00E9]",
                                  kLong + u"1]", kLong + u"2]", u"[CV_TXT-",    u"[CV_IMG-A]",
                                  u"[",          u"]",          u"A]",          u"A",
                                  u"B",          u"TXT-A",      u"CV_TXT-A",    u"\u00E9'",
                                  u"\u3042",     u"\xD800\"",   kFill,          u"\r\n",
                                  u"\r\n",       u"\n",         u"\r",          u" ",
                                  u"<ScRiPt x>", u"</SCRIPT>",  u"<script",     u"/script>",
                                  u"</script >", kTags};
constexpr std::size_t kPlaceholders = 6;
constexpr std::size_t kFirstWithoutOpenBracket = 9;
constexpr std::size_t kFirstOfPagesAlone = 19;

TEST(PlaceholderSubstitution, ComesToTheSameAsThePlainProcedure) {
    std::mt19937 random(20240307);
    const auto join = [&random](std::size_t first, std::size_t last, std::size_t most) {
        std::u16string text;
        for (std::size_t count = random() % (most + 1); count > 0; --count)
            text += kPieces[first + random() % (last - first)];
        return text;
    };
    for (int round = 0; round < 60000; ++round) {
        const bool tame = round % 3 == 0;
        std::deque<std::u16string> texts;
        TextArray tokens(1 + random() % 9);
        TextArray values(tokens.size());
        for (std::size_t i = 1; i < tokens.size(); ++i) {
            tokens[i] = tame || random() % 2 == 0
                            ? kPieces[random() % kPlaceholders]
                            : texts.emplace_back(join(0, kFirstOfPagesAlone, 3));
            values[i] = texts.emplace_back(
                join(tame ? kFirstWithoutOpenBracket : 0, kFirstOfPagesAlone, 3));
        }
        const std::string page = Utf16ToAnsi(join(0, std::size(kPieces), 24));
        const auto mode = static_cast<ScriptMode>(random() % 3);
        const plain::Page expected = plain::Substitute(page, tokens, values, mode);
        const auto actual = Substitute(page, tokens, values, mode);
        ASSERT_TRUE(actual && actual->text == expected.text)
            << "page " << testing::PrintToString(page) << ", tokens "
            << testing::PrintToString(tokens) << ", values " << testing::PrintToString(values)
            << ", text " << testing::PrintToString(expected.text);
        ASSERT_EQ(actual->useCounts, expected.useCounts) << "round " << round;
    }
}

}  // namespace cvlang::tests
