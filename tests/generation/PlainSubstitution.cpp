#include "generation/PlainSubstitution.h"

#include <algorithm>

#include "platform/Ansi.h"
#include "platform/Utf8.h"

namespace cvlang {
namespace {

std::string Encode(const std::u16string& value) {
    std::string bytes;
    for (const char16_t c : value)
        bytes += Utf16ToUtf8({&c, 1});
    return bytes;
}

void ReplaceAll(std::string& text, const std::string& what, const std::string& by) {
    for (std::size_t i = text.find(what); i != std::string::npos;
         i = text.find(what, i + by.size()))
        text.replace(i, what.size(), by);
}

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return text;
}

std::vector<std::string> SplitLines(std::string page) {
    ReplaceAll(page, "\r\n", "\n");
    ReplaceAll(page, "\r", "\n");
    std::vector<std::string> lines;
    while (!page.empty()) {
        const std::size_t end = std::min(page.find('\n'), page.size());
        lines.push_back(page.substr(0, end));
        page.erase(0, end + 1);
    }
    return lines;
}

bool Holds(const std::string& text, const std::string& what) {
    return text.find(what) != std::string::npos;
}

}  // namespace

PlainPage SubstitutePlainly(std::string page, const std::vector<std::u16string>& tokens,
                            const std::vector<std::u16string>& values, bool scriptFile,
                            bool scriptAware) {
    PlainPage result{{}, std::vector<std::int32_t>(tokens.size())};
    bool inScript = false;
    for (std::string& line : SplitLines(std::move(page))) {
        if (Holds(Upper(line), "</SCRIPT>")) {
            inScript = false;
        } else if (Holds(Upper(line), "<SCRIPT ")) {
            inScript = true;
        }
        for (std::size_t i = 1; i < tokens.size() && Holds(line, "[CV_TXT-"); ++i) {
            const auto token = Utf16ToAnsiExactly(tokens[i]);
            if (!token || !Holds(line, *token))
                continue;
            std::string value = Encode(values[i]);
            if (scriptAware && (scriptFile || inScript)) {
                ReplaceAll(value, "'", "\\'");
                ReplaceAll(value, "\"", "\\\"");
            }
            if (!token->empty())
                ReplaceAll(line, *token, value);
            ++result.useCounts[i];
        }
        result.text += result.text.empty() ? line : "\r\n" + line;
    }
    return result;
}

}  // namespace cvlang
