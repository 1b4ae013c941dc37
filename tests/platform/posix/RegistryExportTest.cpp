#include "platform/posix/RegistryExport.h"

#include <gtest/gtest.h>

#include "platform/Utf8.h"
#include "support/Files.h"

namespace cvlang {
namespace {

RegistryValue Value(const std::string& file) {
    return FindInRegistryExport(file, u"SOFTWARE\\Corvane\\Corvane", u"Value");
}

std::string InKey(const std::string& lines) {
    return "Windows Registry Editor Version 5.00\r\n\r\n"
           "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n" +
           lines + "\r\n";
}

TEST(RegistryExport, StringsAreReadWithTheirEscapesAndOtherKindsAreNoText) {
    const std::pair<const char*, std::optional<std::u16string>> cases[] = {
        {R"("Value"="C:\\Program Files")", u"C:\\Program Files"},
        {R"("Value"="say \"hello\"")", u"say \"hello\""},
        {R"(  "VALUE" = ""  )", u""},
        {"\"Value\"=hex(2):41,00,42,\\\n  00,00,00", u"AB"},
        {R"("Value"=hex:41,00,00,00)", std::nullopt},
        {R"("Value"=dword:00000001)", std::nullopt},
        {R"("Value"="ends in backslash\)", std::nullopt},
        {R"("Value"="text" and more)", std::nullopt},
        {"\"Value\"=\"first\"\n\"Value\"=\"second\"", u"second"},
        {"\"Value\"=\"first\"\n\"Value\"=nonsense", u"first"},
        {"\"Value\"=\"first\"\n\"Value\"=-", std::nullopt},
        {"\"Value\"=\"first\"\n[-HKEY_LOCAL_MACHINE\\SOFTWARE\\corvane]", std::nullopt},
        {"\"Value\"=\"first\"\n[HKEY_CURRENT_USER\\X]\n\"Value\"=\"other\"", u"first"}};
    for (const auto& [line, text] : cases)
        EXPECT_EQ(Value(InKey(line)).text, text) << line;
}

TEST(RegistryExport, NumbersAreDwordsOnly) {
    const std::pair<std::string, std::optional<std::int32_t>> cases[] = {
        {"dword:00000002", 2},   {"dword:ffffffff", -1},     {"hex(4):02,01,00,00", 258},
        {"dword:000000002", {}}, {"dword:0000000g", {}},     {"hex(4:02,00,00,00", {}},
        {"hex(4):02,00", {}},    {"hex(5):00,00,00,02", {}}, {"\"2\"", {}}};
    for (const auto& [data, number] : cases)
        EXPECT_EQ(Value(InKey("\"Value\"=" + data)).number, number) << data;
}

TEST(RegistryExport, TheFileMayBeUtf16OrUtf8WithAMarkOrWithout) {
    const std::u16string text =
        u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n\"Value\"=\"\u3042\"\r\n";
    for (const std::string& file : {Utf16Bytes(text), Utf16Bytes(text).substr(2), Utf16ToUtf8(text),
                                    "\xEF\xBB\xBF" + Utf16ToUtf8(text)})
        EXPECT_EQ(Value(file).text, u"\u3042");
}

}  // namespace
}  // namespace cvlang
