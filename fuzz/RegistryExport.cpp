#include "platform/posix/RegistryExport.h"

#include <array>
#include <cstdio>

#include "fuzz/Fuzz.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

constexpr std::u16string_view kKey = u"SOFTWARE\\Corvane\\Corvane";

/// The text in quotation marks, as an exporter writes it.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' || c == '\\' ? 1 : 0, '\\').append(1, c);
    return quoted + '"';
}

/// The bytes as an exporter writes them, continued in a new line after every `width` of them.
std::string Hex(int kind, std::string_view bytes, std::size_t width, std::string_view lineEnd) {
    std::string hex = "hex(" + std::to_string(kind) + "):";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::array<char, 4> byte{};
        std::snprintf(byte.data(), byte.size(), "%02x", static_cast<unsigned char>(bytes[i]));
        hex.append(byte.data()).append(i + 1 < bytes.size() ? "," : "");
        if (i % width == width - 1 && i + 1 < bytes.size())
            hex.append("\\").append(lineEnd).append("  ");
    }
    return hex;
}

/// Looks the value up behind anything, in both encodings.
bool IsFound(std::string_view before, const std::string& data, std::string_view lineEnd,
             const std::optional<std::u16string>& text, std::optional<std::int32_t> number) {
    std::string file(before);
    file.append(lineEnd).append("zzz").append(lineEnd);  // ends bytes that are to be continued
    file.append("[HKEY_LOCAL_MACHINE\\").append(Utf16ToUtf8(kKey)).append("]").append(lineEnd);
    file.append("\"Value\"=").append(data).append(lineEnd);
    for (const std::string& bytes : {"\xEF\xBB\xBF" + file, Utf16Bytes(Utf8ToUtf16(file))}) {
        const RegistryValue value = FindInRegistryExport(bytes, kKey, u"VALUE");
        if (value.text != text || value.number != number)
            return false;
    }
    return true;
}

}  // namespace
}  // namespace cvlang

void cvlang::Try(std::string_view input) {
    FindInRegistryExport(input, kKey, u"Value");
    const std::u16string text = Utf8ToUtf16(input.substr(0, input.find_first_of("\r\n")));
    const std::string bytes = Utf16Bytes(text + u'\0').substr(2);
    const std::size_t width = input.size() % 30 + 1;
    const auto number = static_cast<std::uint32_t>(input.size() * 0x01234567U);
    const std::string little = {static_cast<char>(number), static_cast<char>(number >> 8),
                                static_cast<char>(number >> 16), static_cast<char>(number >> 24)};
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", number);
    const auto expected = static_cast<std::int32_t>(number);
    for (const std::string_view end : {"\r\n", "\n"}) {
        const std::string comment = width % 2 == 0 ? " ; comment" : "";
        Must(IsFound(input, Quoted(Utf16ToUtf8(text)) + comment, end, text, {}),
             "a text is found behind anything");
        for (const int kind : {1, 2})
            Must(IsFound(input, Hex(kind, bytes, width, end) + comment, end, text, {}),
                 "so is one that is given by its bytes");
        Must(IsFound(input, std::string("dword:") + digits.data() + comment, end, {}, expected) &&
                 IsFound(input, Hex(4, little, width % 4 + 1, end) + comment, end, {}, expected),
             "so is a number");
        for (const int kind : {0, 3, 7, 11})
            Must(IsFound(input, Hex(kind, bytes, width, end), end, {}, {}),
                 "a value of another kind is missing");
    }
}
