#include "mail/HtmlToText.h"

#include "text/Strings.h"

namespace cvlang {
namespace {

/// Up to the first ">" behind the start tag, which is the end of the end tag.
std::string WithoutTitle(const std::string& text) {
    constexpr std::string_view kStart = "<title>";
    const std::size_t start = FindIgnoringCase(text, kStart);
    if (start == std::string::npos)
        return text;
    const std::size_t end = text.find('>', start + kStart.size());
    if (end == std::string::npos)
        return text;
    return ReplaceIgnoringCase(text, text.substr(start, end + 1 - start), "");
}

/// Takes out the first such block and every other one that reads the same.
std::string WithoutBlock(const std::string& text, std::string_view startTag,
                         std::string_view endTag) {
    const std::size_t start = FindIgnoringCase(text, startTag);
    if (start == std::string::npos)
        return text;
    const std::size_t end = FindIgnoringCase(text, endTag, start);
    if (end == std::string::npos)
        return text;
    return ReplaceIgnoringCase(text, text.substr(start, end + endTag.size() - start), "");
}

bool BreaksLine(std::string_view tag) {
    const std::string lower = ToLowerCase(tag);
    return lower.starts_with("<td") || lower.starts_with("<div") || lower.starts_with("<li");
}

/// Each tag is taken out of the whole text before the next one is looked for.
std::string WithoutTags(std::string text) {
    for (;;) {
        const std::size_t start = text.find('<');
        const std::size_t end = start == text.npos ? text.npos : text.find('>', start);
        if (end == text.npos)
            return text;
        const std::string tag = text.substr(start, end + 1 - start);
        text = ReplaceIgnoringCase(text, tag, BreaksLine(tag) ? kCrLf : "");
    }
}

}  // namespace

std::string HTMLToText(std::string_view html, LineBreaks lineBreaks) {
    std::string text = ReplaceIgnoringCase(html, kCrLf, "");
    text = WithoutTitle(text);
    text = WithoutBlock(text, "<style", "</style>");
    text = WithoutBlock(text, "<script", "</script>");
    text = ReplaceIgnoringCase(text, "<br>", kCrLf);
    text = ReplaceIgnoringCase(text, "&nbsp;", " ");
    text = WithoutTags(text);
    return lineBreaks == LineBreaks::Kept ? text : ReplaceIgnoringCase(text, kCrLf, "<BR>");
}

}  // namespace cvlang
