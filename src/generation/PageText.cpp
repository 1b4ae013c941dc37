#include "generation/PageText.h"

namespace cvlang {

std::size_t EncodeUTF8(std::u16string_view sText, std::vector<std::uint8_t>& bytOutput) {
    constexpr std::size_t kMostBytesPerCode = 3;
    if (sText.empty())
        return 0;
    bytOutput.resize(sText.size() * kMostBytesPerCode);
    std::uint8_t* end = bytOutput.data();  // faster than an index
    const auto add = [&end](unsigned byte) { *end++ = static_cast<std::uint8_t>(byte); };
    for (const char16_t character : sText) {
        const unsigned c = character;
        if (c < 128) {
            add(c);
        } else if (c < 2048) {
            add(192 + (c >> 6));
            add(128 + (c & 63));
        } else {
            add(224 + (c >> 12));
            add(128 + ((c >> 6) & 63));
            add(128 + (c & 63));
        }
    }
    bytOutput.resize(static_cast<std::size_t>(end - bytOutput.data()));
    return bytOutput.size();
}

std::string_view BytesToString(const std::vector<std::uint8_t>& bytInput) {
    return {reinterpret_cast<const char*>(bytInput.data()), bytInput.size()};
}

std::string EscapeForScript(std::string_view sText) {
    PageText escaped;
    AppendEscapedForScript(sText, escaped);
    return std::string(escaped.View());
}

void AppendEscapedForScript(std::string_view text, PageText& page) {
    for (const char c : text) {
        if (c == '\'' || c == '"')
            page.Append("\\");
        page.Append({&c, 1});
    }
}

}  // namespace cvlang
