#include "mail/HtmlToText.h"

#include <gtest/gtest.h>

namespace cvlang {
namespace {

TEST(HtmlToText, MarkupBecomesPlainText) {
    const std::pair<const char*, const char*> cases[] = {
        {"a\r\nb<BR>c<br/>d", "ab\r\ncd"},
        {"a&NBSP;b&amp;", "a b&amp;"},
        {"x<Title>A <b></TITLE>y", "xy"},
        {"x<Title>A</TITLE>y<title>a</title>z", "xyz"},
        {"1<style t>b{}</STYLE>2<STYLE T>B{}</style>3<style>c</style>", "123c"},
        {"</style>1<style>a", "1a"},
        {"<title><title><title>x", "x"},
        {"1<script>if (a<b)</script>2", "12"},
        {"<tr><td>a<TD x>b</td><div>c<li>d", "\r\na\r\nb\r\nc\r\nd"},
        {"<a <b>c>d < e", "c>d < e"},
        {"> <b>1<a <B>c>2", "> 12"}};
    for (const auto& [html, text] : cases)
        EXPECT_EQ(HTMLToText(html, LineBreaks::Kept), text) << html;
    EXPECT_EQ(HTMLToText("a<br>b<div>c", LineBreaks::AsMarkup), "a<BR>b<BR>c");
}

}  // namespace
}  // namespace cvlang
