#include "mail/HtmlToText.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "mail/IgnoringCase.h"
#include "mail/TagRemoval.h"

namespace cvlang {
namespace {

TEST(HtmlToText, MarkupBecomesPlainText) {
    const struct {
        const char *html, *text;
    } cases[] = {
        {"a\r\nb\nc", "ab\nc"},
        {"a<BR>b<br>c<br/>d", "a\r\nb\r\ncd"},
        {"a&NBSP;b&amp;", "a b&amp;"},
        {"x<Title>A <b></TITLE>y", "xy"},
        {"x<Title>A</TITLE>y<title>a</title>z", "xyz"},
        {"1<style t>b{}</STYLE>2<STYLE T>B{}</style>3<style>c</style>", "123c"},
        {"</style>1<style>a", "1a"},
        {"<title><title><title>x", "x"},
        {"1<script>if (a<b)</script>2", "12"},
        {"<tr><td>a<TD x>b</td><div>c</div><li>d<ol>e</ol>", "\r\na\r\nb\r\nc\r\nde"},
        {"a < b", "a < b"},
        {"<a <b>c>d", "c>d"},
        {"<b>1<a <B>c>2", "12"},
    };
    for (const auto& [html, text] : cases)
        EXPECT_EQ(HTMLToText(html, LineBreaks::Kept), text) << html;
    EXPECT_EQ(HTMLToText("a<br>b<div>c", LineBreaks::AsMarkup), "a<BR>b<BR>c");
}

/// What RemoveTags promises, word by word and slowly.
std::string TagsRemovedOneByOne(std::string text) {
    for (;;) {
        const std::size_t start = text.find('<');
        const std::size_t end = start == text.npos ? text.npos : text.find('>', start);
        if (end == text.npos)
            return text;
        const std::string tag = text.substr(start, end + 1 - start);
        const bool breaks = std::regex_search(tag, std::regex("^<(td|div|li)", std::regex::icase));
        text = ReplaceIgnoringCase(text, tag, breaks ? "\r\n" : "");
    }
}

TEST(HtmlToText, OnePassRemovesTagsAsReplacingOneByOneDoes) {
    std::mt19937 random(1);
    const std::string pieces[] = {"<", ">", "<", ">", "a", "A", "<td", "<a>", "<<a"};
    for (int round = 0; round < 10000; ++round) {
        std::string html;
        for (auto length = random() % 40; length > 0; --length)
            html += pieces[random() % std::size(pieces)];
        ASSERT_EQ(RemoveTags(html), TagsRemovedOneByOne(html)) << html;
    }
}

TEST(HtmlToText, HostileMarkupTakesNoSquareOfTime) {
    constexpr int kMany = 200000;
    std::string different;
    for (int i = 0; i < kMany; ++i)
        different.append("<").append(std::to_string(i)).append(">");
    EXPECT_EQ(HTMLToText(different, LineBreaks::Kept), "");
    std::string style;
    for (int i = 0; i < kMany; ++i)
        style += "<style";
    EXPECT_TRUE(HTMLToText(style + "</style>" + style, LineBreaks::Kept) == style);
}

}  // namespace
}  // namespace cvlang
