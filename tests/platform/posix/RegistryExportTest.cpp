#include "platform/posix/RegistryExport.h"

#include <gtest/gtest.h>

#include "platform/Utf8.h"
#include "support/Files.h"

namespace cvlang {
namespace {

constexpr char kKey[] = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Corvane\\Corvane]\r\n";

RegistryValue Value(const std::string& file) {
    return FindInRegistryExport(file, u"SOFTWARE\\Corvane\\Corvane", u"Value");
}

TEST(RegistryExport, StringsAreReadWithTheirEscapesAndNumbersAreDwordsOnly) {
    const std::tuple<const char*, std::optional<std::u16string>, std::optional<std::int32_t>>
        cases[] = {
            {R"("Value"="C:\\Program Files")", u"C:\\Program Files", {}},
            {R"("Value"="say \"hello\"")", u"say \"hello\"", {}},
            {R"(  "VALUE" = ""  )", u"", {}},
            {"\"Value\"=hex(2):41,00,42,\\\n  00,00,00", u"AB", {}},
            {R"("Value"=hex:41,00,00,00)", {}, {}},
            {R"("Value"="ends in backslash\)", {}, {}},
            {R"("Value"="text" and more)", {}, {}},
            {"\"Value\"=\"first\"\n\"Value\"=\"second\"", u"second", {}},
            {"\"Value\"=\"first\"\n\"Value\"=nonsense", u"first", {}},
            {"\"Value\"=\"first\"\n\"Value\"=-", {}, {}},
            {"\"Value\"=\"first\"\n[-HKEY_LOCAL_MACHINE\\SOFTWARE\\corvane]", {}, {}},
            {"\"Value\"=\"first\"\n[HKEY_CURRENT_USER\\X]\n\"Value\"=\"other\"", u"first", {}},
            {R"("Value"="2")", u"2", {}},
            {R"("Value"=dword:00000002)", {}, 2},
            {R"("Value"=dword:ffffffff)", {}, -1},
            {R"("Value"=dword:000000002)", {}, {}},
            {R"("Value"=dword:0000000g)", {}, {}},
            {R"("Value"=hex(4):02,01,00,00)", {}, 258},
            {R"("Value"=hex(4:02,00,00,00)", {}, {}},
            {R"("Value"=hex(4):02,00)", {}, {}},
            {R"("Value"=hex(5):00,00,00,02)", {}, {}}};
    for (const auto& [lines, text, number] : cases) {
        const RegistryValue value = Value(std::string(kKey) + lines + "\r\n");
        EXPECT_EQ(value.text, text) << lines;
        EXPECT_EQ(value.number, number) << lines;
    }
}

TEST(RegistryExport, TheFileMayBeUtf16OrUtf8WithAMarkOrWithout) {
    const std::u16string text = Utf8ToUtf16(kKey) + u"\"Value\"=\"\u3042\"\r\n";
    for (const std::string& file : {Utf16Bytes(text), Utf16Bytes(text).substr(2), Utf16ToUtf8(text),
                                    "\xEF\xBB\xBF" + Utf16ToUtf8(text)})
        EXPECT_EQ(Value(file).text, u"\u3042");
}

}  // namespace
}  // namespace cvlang
