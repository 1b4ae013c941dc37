// Each byte is a choice among the pieces of which tokens, values and a page are made.
#include <algorithm>
#include <deque>

#include "fuzz/Fuzz.h"
#include "fuzz/PlainSubstitution.h"
#include "generation/PlaceholderSubstitution.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

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

/// Some pieces of a range, which may end before the last.
std::u16string Join(Choices& choices, std::size_t first, std::size_t last, std::size_t most) {
    std::u16string text;
    for (std::size_t count = choices.Number(most + 1); count > 0; --count)
        text += kPieces[first + choices.Number(last - first)];
    return text;
}

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    Choices choices(input);
    const auto mode = static_cast<ScriptMode>(choices.Number(3));
    const bool tame = choices.Number(3) == 0;  // no values within values
    std::deque<std::u16string> texts;
    TextArray tokens(1 + choices.Number(9));
    TextArray values(tokens.size());
    for (std::size_t i = 1; i < tokens.size(); ++i) {
        tokens[i] = tame || choices.Number(2) == 0
                        ? kPieces[choices.Number(kPlaceholders)]
                        : texts.emplace_back(Join(choices, 0, kFirstOfPagesAlone, 3));
        values[i] = texts.emplace_back(
            Join(choices, tame ? kFirstWithoutOpenBracket : 0, kFirstOfPagesAlone, 3));
    }
    std::string page;
    for (std::size_t pieces = 0; pieces < 24 && !choices.Empty(); ++pieces)
        page += Utf16ToAnsi(kPieces[choices.Number(std::size(kPieces))]);

    const plain::Page expected = plain::Substitute(page, tokens, values, mode);
    const TokenIndex index(tokens, values);
    std::vector<std::int32_t> useCounts(tokens.size());
    PlaceholderSubstitution substitution(index, useCounts);
    PageText text;
    for (const int times : {1, 2}) {  // pages of one run must not be taken for each other
        Must(substitution.Translate(page, mode, text), "a page is translated");
        Must(text.View() == (times == 1 ? "" : expected.text) + expected.text,
             "the text is that of the plain procedure: " + expected.text);
        Must(std::ranges::equal(useCounts, expected.useCounts, {}, {},
                                [times](std::int32_t count) { return count * times; }),
             "so are the counts");
    }
}
