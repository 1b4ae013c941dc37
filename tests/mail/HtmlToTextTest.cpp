#include "mail/HtmlToText.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace cvlang
