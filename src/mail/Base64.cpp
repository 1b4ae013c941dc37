#include "mail/Base64.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "mail/MailError.h"
#include "platform/FileSystem.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kLineLength = 76;
constexpr std::size_t kBytesOfLine = kLineLength / 4 * 3;

using Pair = std::array<char, 2>;

/// Two characters for each value of 12 bits: half the look-ups.
constexpr std::array<Pair, 4096> kPairs = [] {
    std::array<Pair, 4096> pairs{};
    for (std::size_t value = 0; value < pairs.size(); ++value)
        pairs[value] = {kAlphabet[value >> 6], kAlphabet[value & 63]};
    return pairs;
}();

constexpr std::array<std::uint8_t, 256> kValues = [] {
    std::array<std::uint8_t, 256> values{};
    for (std::size_t value = 0; value < kAlphabet.size(); ++value)
        values[static_cast<unsigned char>(kAlphabet[value])] = static_cast<std::uint8_t>(value);
    return values;
}();

std::uint32_t ByteAt(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U;
}

char* EncodeGroup(std::uint32_t bits, char* to) {
    std::memcpy(to, kPairs[bits >> 12].data(), 2);
    std::memcpy(to + 2, kPairs[bits & 4095].data(), 2);
    return to + 4;
}

char* EncodeLine(std::string_view bytes, char* to) {
    const auto* from = reinterpret_cast<const unsigned char*>(bytes.data());
    for (std::size_t groups = bytes.size() / 3; groups > 0; --groups, from += 3)
        to = EncodeGroup(std::uint32_t{from[0]} << 16 | std::uint32_t{from[1]} << 8 | from[2], to);
    const std::string_view rest = bytes.substr(bytes.size() / 3 * 3);
    if (rest.empty())
        return to;
    to = EncodeGroup(ByteAt(rest, 0) << 16 | ByteAt(rest, 1) << 8, to);
    std::fill(to - 3 + rest.size(), to, '=');
    return to;
}

}  // namespace

std::string Base64::EncodeByteArr(std::string_view bytInput) {
    std::string text;
    AppendEncoded(text, bytInput);
    return text;
}

void Base64::AppendEncoded(std::string& text, std::string_view bytes) {
    text.reserve(text.size() + EncodedSize(bytes.size()));
    const bool cut = bytes.size() > kBytesOfLine;
    std::array<char, kLineLength + kCrLf.size()> line;
    while (!bytes.empty()) {
        char* end = EncodeLine(bytes.substr(0, kBytesOfLine), line.data());
        if (cut && end == line.data() + kLineLength)
            end = std::copy(kCrLf.begin(), kCrLf.end(), end);
        text.append(line.data(), end);
        bytes.remove_prefix(std::min(bytes.size(), kBytesOfLine));
    }
}

std::size_t Base64::EncodedSize(std::size_t byteCount) {
    const std::size_t characters = (byteCount + 2) / 3 * 4;
    const std::size_t lineBreaks = characters > kLineLength ? characters / kLineLength : 0;
    return characters + lineBreaks * kCrLf.size();
}

std::string Base64::EncodeFile(const std::filesystem::path& file) {
    FileContent content;
    [[maybe_unused]] const FileStatus ignored = ReadFile(file, content);
    return EncodeByteArr(content.Bytes());
}

std::string Base64::DecodeToByteArr(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 3);
    std::uint32_t bits = 0;  // the lowest ones are still to be written
    int bitCount = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, kCrLf.size(), kCrLf) == 0) {
            ++i;
        } else if (text[i] != '=') {
            bits = bits << 6 | kValues[static_cast<unsigned char>(text[i])];
            bitCount += 6;
        }
        if (bitCount >= 8) {
            bitCount -= 8;
            bytes += static_cast<char>(bits >> bitCount & 0xFF);
        }
    }
    return bytes;
}

bool Base64::DecodeToFile(std::string_view text, const std::filesystem::path& file) {
    if (EntryExists(file))
        throw MailError(MailErrorNumber::FileExists, "Base64.DecodeToFile", "File already exists.");
    return !WriteFile(file, DecodeToByteArr(text));
}

}  // namespace cvlang
