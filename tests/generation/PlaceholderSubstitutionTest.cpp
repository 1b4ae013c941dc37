// Cases that name what matters; fuzz/Page.cpp compares all that can meet with the plain procedure.
#include "generation/PlaceholderSubstitution.h"

#include <gtest/gtest.h>

namespace cvlang::tests {

/// The page with its tokens replaced; "given up" when there are too many.
std::string Substitute(std::string_view page, const TextArray& tokens, const TextArray& values,
                       ScriptMode mode = ScriptMode::Tracked) {
    const TokenIndex index(tokens, values);
    std::vector<std::int32_t> useCounts(tokens.size());
    PageText text;
    return PlaceholderSubstitution(index, useCounts).Translate(page, mode, text)
               ? std::string(text.View())
               : "given up";
}

TEST(PlaceholderSubstitution, ReplacesTokensInTheOrderOfTheArrayOnLinesThatHoldPlaceholders) {
    constexpr std::u16string_view a = u"[CV_TXT-A]", b = u"[CV_TXT-B]";
    const std::tuple<std::string, TextArray, TextArray, std::string> cases[] = {
        {"[CV_TXT-A] [CV_TXT-a][CV_TXT-A]", {{}, a}, {{}, u"1"}, "1 [CV_TXT-a]1"},
        {"[CV_TXT-A]", {{}, a, a}, {{}, u"1", u"2"}, "1"},
        {"[CV_TXT-A]", {{}, a, b}, {{}, b, u"1"}, "1"},
        {"[CV_TXT-A]", {{}, b, a}, {{}, u"1", b}, "[CV_TXT-B]"},
        {"[CV_TXT-[CV_TXT-A]", {{}, a, b}, {{}, u"B]", u"1"}, "1"},
        {"x\r\nx[CV_TXT-B]", {{}, u"x"}, {{}, u"y"}, "x\r\ny[CV_TXT-B]"},
        {"x[CV_TXT-A]", {{}, a, u"x"}, {{}, u"1", u"y"}, "x1"},
        {"[CV_TXT-\xE9]?",
         {{}, u"[CV_TXT-\u00E9]", u"\u3042"},
         {{}, u"\u3042", u"y"},
         "\xE3\x81\x82?"},
        {"[CV_TXT-A]", {{}, u"", a}, {{}, u"x", u"\xD800"}, "\xED\xA0\x80"}};
    for (const auto& [page, tokens, values, text] : cases)
        EXPECT_EQ(Substitute(page, tokens, values), text) << page;
}

TEST(PlaceholderSubstitution, EndsLinesByCrLfAndEscapesQuotesInScript) {
    const std::pair<std::string, std::string> cases[] = {
        {"\n\r\n[CV_TXT-A]\ra\n\r\nb\r\n\r\n", "'\r\na\r\n\r\nb\r\n"},
        {"[CV_TXT-B]\r\n[CV_TXT-B]\r\n[CV_TXT-A]", "'"},
        {"<SCRIPT >[CV_TXT-A]\n[CV_TXT-A]</script>", "<SCRIPT >\\'\r\n'</script>"},
        {"<script>[CV_TXT-A]", "<script>'"}};
    for (const auto& [page, text] : cases)
        EXPECT_EQ(Substitute(page, {{}, u"[CV_TXT-A]", u"[CV_TXT-B]"}, {{}, u"'", u""}), text);
    EXPECT_EQ(Substitute("[CV_TXT-A]", {{}, u"[CV_TXT-A]"}, {{}, u"\""}, ScriptMode::Always),
              "\\\"");
    EXPECT_EQ(
        Substitute("<script >[CV_TXT-A]", {{}, u"[CV_TXT-A]"}, {{}, u"'"}, ScriptMode::Ignored),
        "<script >'");
}

TEST(PlaceholderSubstitution, GivesUpAPageWithPlaceholdersForMoreTokensThanCanBeNumbered) {
    for (const auto& [most, text] : {std::pair{32767U, "x"}, {32768U, "given up"}}) {
        const TextArray tokens(most + 1, u"[CV_TXT-A]");
        const TextArray values(most + 1);
        EXPECT_EQ(Substitute("x[CV_TXT-A]", tokens, values), text);
        EXPECT_EQ(Substitute("x[CV_TXT", tokens, values), "x[CV_TXT");
    }
}

}  // namespace cvlang::tests
