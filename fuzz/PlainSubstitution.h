// The procedure of substitution as it is defined: line by line, token by token.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generation/PageScan.h"
#include "platform/Ansi.h"
#include "text/Strings.h"
#include "text/Unicode.h"
#include "translation/TokenMapFile.h"

namespace cvlang::plain {

struct Page {
    std::string text;
    std::vector<std::int32_t> useCounts;
};

inline void ReplaceAll(std::string& text, const std::string& what, const std::string& by) {
    for (std::size_t i = 0; (i = text.find(what, i)) != text.npos; i += by.size())
        text.replace(i, what.size(), by);
}

inline Page Substitute(const std::string& page, const TextArray& tokens, const TextArray& values,
                       ScriptMode mode) {
    Page result{{}, std::vector<std::int32_t>(tokens.size())};
    bool inScript = mode == ScriptMode::Always;
    Lines<char> lines(page);
    for (std::string_view start; lines.Next(start);) {
        std::string line(start);
        const auto holds = [&line](const std::string& text) {
            return line.find(text) != line.npos;
        };
        const auto holdsTag = [&line](std::string_view tag) {
            return FindIgnoringCase(line, tag) != line.npos;
        };
        if (mode == ScriptMode::Tracked)
            inScript = !holdsTag("</script>") && (inScript || holdsTag("<script "));
        for (std::size_t i = 1; i < tokens.size() && holds("[CV_TXT-"); ++i) {
            const auto token = Utf16ToAnsiExactly(tokens[i]);
            if (!token || !holds(*token))
                continue;
            std::string value;
            for (const char16_t c : values[i])
                value += Utf16ToUtf8({&c, 1});
            if (inScript) {
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

}  // namespace cvlang::plain
