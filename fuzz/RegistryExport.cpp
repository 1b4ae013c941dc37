#include "platform/posix/RegistryExport.h"

#include "fuzz/Fuzz.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

constexpr std::u16string_view kKey = u"SOFTWARE\\Corvane\\Corvane";

/// The lines that set the value to that text.
std::u16string Setting(std::u16string_view text) {
    std::u16string lines(u"\r\n\r\n[HKEY_LOCAL_MACHINE\\");
    lines.append(kKey).append(u"]\r\n\"Value\"=\"");
    for (const char16_t c : text)
        lines.append(c == u'"' || c == u'\\' ? 1 : 0, u'\\').append(1, c);
    return lines.append(u"\"\r\n");
}

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    FindInRegistryExport(input, kKey, u"Value");
    std::u16string text = Utf8ToUtf16(input);
    const std::u16string line = text.substr(0, text.find_first_of(u"\r\n"));
    text += Setting(line);
    Must(FindInRegistryExport("\xEF\xBB\xBF" + Utf16ToUtf8(text), kKey, u"VALUE").text == line &&
             FindInRegistryExport(Utf16Bytes(text), kKey, u"value").text == line,
         "a value is found behind anything");
}
