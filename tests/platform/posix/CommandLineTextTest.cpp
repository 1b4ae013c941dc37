#include <gtest/gtest.h>

#include <vector>

#include "platform/Process.h"

namespace cvlang {
namespace {

TEST(CommandLineText, IsRebuiltFromTheArguments) {
    const struct {
        std::vector<const char*> arguments;
        const char16_t* text;
    } cases[] = {
        {{"program"}, u""},
        {{"program", "WebMail", "default.net", "French"}, u"WebMail default.net French"},
        {{"program", "WebMail", "default.net", "Brazilian Portuguese"},
         u"WebMail default.net \"Brazilian Portuguese\""},
        {{"program", "WebMail", "", "x"}, u"WebMail \"\" x"},
        {{"program", ""}, u"\"\""},
        {{"program",
          "fran\xC3\xA7"
          "ais"},
         u"fran\u00E7ais"},
    };
    for (const auto& [arguments, text] : cases)
        EXPECT_EQ(CommandLineText(static_cast<int>(arguments.size()), arguments.data()), text);
}

}  // namespace
}  // namespace cvlang
