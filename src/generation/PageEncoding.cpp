#include "generation/PageEncoding.h"

#include <algorithm>

namespace cvlang {

std::size_t EncodeUTF8(std::u16string_view sText, std::vector<std::uint8_t>& bytOutput) {
    constexpr std::size_t kMostBytesPerCode = 3;
    if (sText.empty())
        return 0;
    bytOutput.resize(sText.size() * kMostBytesPerCode);
    std::size_t size = 0;
    const auto add = [&](unsigned byte) { bytOutput[size++] = static_cast<std::uint8_t>(byte); };
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
    bytOutput.resize(size);
    return size;
}

std::string BytesToString(const std::vector<std::uint8_t>& bytInput) {
    return {bytInput.begin(), bytInput.end()};
}

std::string EscapeForScript(std::string_view sText) {
    const auto isQuote = [](char c) { return c == '\'' || c == '"'; };
    std::string escaped;
    escaped.reserve(sText.size() + 8);
    for (auto from = sText.begin();;) {
        const auto quote = std::find_if(from, sText.end(), isQuote);
        escaped.append(from, quote);
        if (quote == sText.end())
            return escaped;
        escaped += {'\\', *quote};
        from = quote + 1;
    }
}

}  // namespace cvlang
