#include "generation/PlaceholderSubstitution.h"

#include <gtest/gtest.h>

#include <random>

#include "generation/PlainSubstitution.h"

namespace cvlang {
namespace {

using Texts = std::vector<std::u16string>;

struct Translated {
    bool done;
    std::string text;
    std::vector<std::int32_t> useCounts;
};

Translated Substitute(std::string_view page, const Texts& tokens, const Texts& values,
                      ScriptMode mode = ScriptMode::Tracked) {
    const TokenIndex index(tokens, values);
    Translated result{false, {}, std::vector<std::int32_t>(tokens.size())};
    PlaceholderSubstitution substitution(index, result.useCounts);
    result.done = substitution.Translate(page, mode, result.text);
    return result;
}

TEST(PlaceholderSubstitution, LinesAreJoinedWithoutBlankOnesAtTheStartAndTheLastEnd) {
    const Texts tokens{u"", u"[CV_TXT-EMPTY]", u"[CV_TXT-A]"};
    const Texts values{u"", u"", u"a"};
    const struct {
        const char* page;
        const char* text;
    } cases[] = {
        {"", ""},
        {"\r\n\r\n", ""},
        {"\r\n\nx\r\n\r\ny\r\n", "x\r\n\r\ny"},
        {"x\r\n\r\n", "x\r\n"},
        {"x\ny\rz", "x\r\ny\r\nz"},
        {"[CV_TXT-EMPTY]\r\n\r\n[CV_TXT-A]\r\n", "a"},
        {"[CV_TXT-A]\r\n[CV_TXT-EMPTY]\r\n\r\nx", "a\r\n\r\n\r\nx"},
        {" \r\n[CV_TXT-A]", " \r\na"},
        {"[CV_TXT-A][CV_TXT-B][CV_TXT-A", "a[CV_TXT-B][CV_TXT-A"},
    };
    for (const auto& [page, text] : cases)
        EXPECT_EQ(Substitute(page, tokens, values).text, text) << page;
}

TEST(PlaceholderSubstitution, ValuesAreEscapedOnScriptLinesOnly) {
    const Texts tokens{u"", u"[CV_TXT-A]"};
    const Texts values{u"", u"l'\"x\""};
    const std::string plain = "l'\"x\"";
    const std::string escaped = "l\\'\\\"x\\\"";
    const struct {
        std::string before;
        ScriptMode mode;
        bool isEscaped;
    } cases[] = {
        {"", ScriptMode::Tracked, false},
        {"", ScriptMode::Always, true},
        {"<script type=x>", ScriptMode::Tracked, true},
        {"<script type=x>", ScriptMode::Ignored, false},
        {"<ScRiPt src>\r\nx\r\n", ScriptMode::Tracked, true},
        {"<script>", ScriptMode::Tracked, false},
        {"<script a>\r\n</SCRIPT>\r\n", ScriptMode::Tracked, false},
        {"<script a>\r\n</script > ", ScriptMode::Tracked, true},
        {"<script a></script>", ScriptMode::Tracked, false},
        {"</script><script a>", ScriptMode::Tracked, false},
        {"</script>\r\n" + std::string(700, '<') + "<script a>\r\n", ScriptMode::Tracked, true},
        {"x\r\n</script\r\n<script\r\n", ScriptMode::Tracked, false},
    };
    for (const auto& [before, mode, isEscaped] : cases) {
        const std::string text =
            Substitute(before + "[CV_TXT-A]", Texts(tokens), values, mode).text;
        EXPECT_EQ(text, before + (isEscaped ? escaped : plain));
    }
    for (std::size_t column = 240; column < 270; ++column) {  // wherever blocks of a page end
        const std::string before = std::string(column, 'x') + "<Script a>" + std::string(600, 'y');
        EXPECT_EQ(Substitute(before + "[CV_TXT-A]", tokens, values).text, before + escaped);
    }
}

TEST(PlaceholderSubstitution, MoreTokensThanCanBeNumberedEndAPageAtItsFirstPlaceholder) {
    for (const auto& [tokens, done] : {std::pair<std::size_t, bool>{32767, true}, {32768, false}}) {
        const Texts arrTokens(tokens + 1, u"[CV_TXT-A]");
        const Texts arrValues(tokens + 1, u"a");
        EXPECT_EQ(Substitute("x[CV_TXT-A]", arrTokens, arrValues).done, done);
        EXPECT_TRUE(Substitute("x[CV_TXT", arrTokens, arrValues).done);
    }
}

/// Tokens and pages from few letters, so that they meet in every way: tokens within tokens, values
/// that bring or complete placeholders, brackets left open, empty and repeated tokens, tokens of
/// any other form.
class RandomInput {
  public:
    explicit RandomInput(unsigned seed) : random_(seed) {}

    std::size_t Below(std::size_t limit) { return random_() % limit; }

    template <typename Text, std::size_t Size>
    Text Join(const Text (&pieces)[Size], std::size_t most) {
        Text text;
        for (std::size_t count = Below(most + 1); count > 0; --count)
            text += pieces[Below(Size)];
        return text;
    }

    std::u16string Token(bool tame) {
        static const std::u16string pieces[] = {u"A",        u"B",          u"[",    u"]",
                                                u"[CV_TXT-", u"[CV_TXT-A]", u"TXT-", u"é",
                                                u"\u3042",   u"[CV_IMG-A]", u"'"};
        static const std::u16string names[] = {u"A", u"B", u"AB", u"é", u"\u3042"};
        const std::size_t kind = Below(tame ? 6 : 10);
        if (kind < 6)
            return u"[CV_TXT-" + names[Below(5)] + u"]";
        return kind < 7 ? u"" : Join(pieces, 4);
    }

    std::u16string Value(bool tame) {
        static const std::u16string pieces[] = {u"x",          u"é'",         u"\"",      u"\xD800",
                                                u"]",          u"A]",         u"TXT-A",   u"[",
                                                u"[CV_TXT-A]", u"[CV_TXT-B]", u"CV_TXT-A"};
        std::u16string value = Join(pieces, 3);
        while (tame && value.find(u'[') != value.npos)
            value = Join(pieces, 3);
        return value;
    }

    std::string Page() {
        static const std::string pieces[] = {
            "[CV_TXT-A]", "[CV_TXT-B]", "[CV_TXT-AB]", "[CV_TXT-\xE9]",
            "[CV_TXT-",   "[CV_IMG-A]", "[CV_",        "[",
            "]",          "A",          "TXT-A",       "\r\n",
            "\r\n",       "\n",         "\r",          " ",
            "<script x>", "</SCRIPT>",  "\xC3\xA9",    "\xEF\xBB\xBF",
            "'"};
        return Join(pieces, 24);
    }

  private:
    std::mt19937 random_;
};

TEST(PlaceholderSubstitution, ComesToTheSameAsThePlainProcedure) {
    RandomInput input(20240307);
    for (int round = 0; round < 60000; ++round) {
        const bool tame = round % 3 == 0;
        Texts tokens(1 + input.Below(9));
        Texts values(tokens.size());
        for (std::size_t i = 1; i < tokens.size(); ++i) {
            tokens[i] = input.Token(tame);
            values[i] = input.Value(tame && input.Below(3) > 0);
        }
        const std::string page = input.Page();
        const bool scriptFile = input.Below(4) == 0;
        const bool scriptAware = input.Below(4) > 0;
        const ScriptMode mode = !scriptAware ? ScriptMode::Ignored
                                : scriptFile ? ScriptMode::Always
                                             : ScriptMode::Tracked;
        const PlainPage expected = SubstitutePlainly(page, tokens, values, scriptFile, scriptAware);
        const Translated actual = Substitute(page, tokens, values, mode);
        ASSERT_EQ(actual.text, expected.text)
            << "round " << round << ", page " << testing::PrintToString(page) << ", tokens "
            << testing::PrintToString(tokens) << ", values " << testing::PrintToString(values);
        ASSERT_EQ(actual.useCounts, expected.useCounts) << "round " << round;
    }
}

}  // namespace
}  // namespace cvlang
