#include "translation/Lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cvlang {
namespace {

TEST(Lines, EndAtCrLfLfAndCr) {
    const struct {
        std::string_view text;
        std::vector<std::string> lines;
    } cases[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"a\r\n", {"a"}},
        {"a\r\n\r\n", {"a", ""}},
        {"\n\r\n\r", {"", "", ""}},
        {"\r", {""}},
        {"a\n\rb", {"a", "", "b"}},
    };
    for (const auto& [text, expected] : cases) {
        std::vector<std::string> read;
        Lines<char> lines(text);
        for (std::string_view line; lines.Next(line);)
            read.emplace_back(line);
        EXPECT_EQ(read, expected) << testing::PrintToString(text);
    }
}

}  // namespace
}  // namespace cvlang
