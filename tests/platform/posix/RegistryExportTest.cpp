#include "platform/posix/RegistryExport.h"

#include <gtest/gtest.h>

#include <random>

#include "support/Files.h"

namespace cvlang {
namespace {

constexpr std::u16string_view kKey = u"SOFTWARE\\Corvane\\Corvane";

std::string InKey(const std::string& lines) {
    return "Windows Registry Editor Version 5.00\r\n\r\n"
           "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n" +
           lines + "\r\n";
}

RegistryValue Value(const std::string& file) {
    return FindInRegistryExport(file, kKey, u"Value");
}

TEST(RegistryExport, StringsAreReadWithTheirEscapesAndOtherKindsAreNoText) {
    const struct {
        const char* line;
        std::optional<std::u16string> text;
    } cases[] = {
        {R"("Value"="C:\\Program Files\\Corvane")", u"C:\\Program Files\\Corvane"},
        {R"("Value"="say \"hello\"")", u"say \"hello\""},
        {R"("VALUE"="")", u""},
        {R"(  "value" = "blanks around"  )", u"blanks around"},
        {"\"Value\"=\"\xC3\xA9t\xC3\xA9\"", u"\u00E9t\u00E9"},
        {R"("Value"=hex(2):41,00,42,\
  00,00,00)",
         u"AB"},
        {R"("Value"=hex(1):41,00)", u"A"},
        {R"("Value"=hex:41,00,00,00)", std::nullopt},
        {R"("Value"=hex(7):41,00,00,00,00,00)", std::nullopt},
        {R"("Value"=dword:00000001)", std::nullopt},
        {R"("Value"="not closed)", std::nullopt},
        {R"("Value"="ends in backslash\)", std::nullopt},
        {R"("Value"="text" and more)", std::nullopt},
        {R"("Value")", std::nullopt},
        {R"("Value"=)", std::nullopt},
        {R"(;"Value"="comment")", std::nullopt},
        {R"("Value"="first"
"Value"="second")",
         u"second"},
        {R"("Value"="first"
"Value"=nonsense)",
         u"first"},
        {R"("Value"="first"
"Value"=-)",
         std::nullopt},
        {R"("Value"="first"
[-HKEY_LOCAL_MACHINE\SOFTWARE\corvane])",
         std::nullopt},
        {R"("Value"="first"
[HKEY_CURRENT_USER\SOFTWARE\Corvane\Corvane]
"Value"="other")",
         u"first"},
    };
    for (const auto& [line, text] : cases)
        EXPECT_EQ(Value(InKey(line)).text, text) << line;
}

TEST(RegistryExport, NumbersAreDwordsOnly) {
    const struct {
        const char* data;
        std::optional<std::int32_t> number;
    } cases[] = {
        {"dword:00000002", 2},
        {"dword:2", 2},
        {"dword:ffffffff", -1},
        {"hex(4):02,01,00,00", 258},
        {"hex(5):00,00,00,02", {}},
        {"hex(4):02,00", {}},
        {"hex(b):02,00,00,00,00,00,00,00", {}},
        {"\"2\"", {}},
        {"dword:", {}},
        {"dword:000000002", {}},
        {"dword:0000000g", {}},
        {"hex(4:02,00,00,00", {}},
        {"hex(4):2,,0,0", {}},
    };
    for (const auto& [data, number] : cases)
        EXPECT_EQ(Value(InKey(std::string("\"Value\"=") + data)).number, number) << data;
}

TEST(RegistryExport, TheFileMayBeUtf16OrUtf8WithAMarkOrWithout) {
    const std::string utf16 = Utf16Bytes(
        u"Windows Registry Editor Version "
        u"5.00\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n"
        u"\"Value\"=\"\u3042\"\r\n");
    EXPECT_EQ(Value(utf16).text, u"\u3042");
    EXPECT_EQ(Value(utf16.substr(2)).text, u"\u3042");
    EXPECT_EQ(Value("\xEF\xBB\xBF" + InKey("\"Value\"=\"\xE3\x81\x82\"")).text, u"\u3042");
    EXPECT_EQ(Value("").text, std::nullopt);
}

TEST(RegistryExport, CutsAndChangedBytesNeverDoHarm) {
    const std::string whole = InKey("\"Value\"=hex(2):41,00,\\\n  00,00\n\"Value\"=\"x\\\\y\"");
    std::mt19937 random(3);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        std::string broken = whole.substr(0, length);
        Value(broken);
        if (!broken.empty())
            broken[random() % broken.size()] = static_cast<char>(random());
        Value(broken);
    }
    EXPECT_EQ(Value(whole).text, u"x\\y");
}

}  // namespace
}  // namespace cvlang
