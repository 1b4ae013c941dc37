#include "generation/TokenIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>

#include "generation/PageEncoding.h"
#include "platform/Ansi.h"

namespace cvlang {
namespace {

/// Eight bytes at a time. The last product spreads what differs, mostly a few letters, over the
/// bits that are used.
std::uint32_t Hash(std::string_view text) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    std::uint64_t hash = text.size();
    while (text.size() >= 8) {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, text.data(), 8);
        hash = (std::rotl(hash, 23) ^ chunk) * kFactor;
        text.remove_prefix(8);
    }
    std::uint64_t rest = 0;
    std::memcpy(&rest, text.data(), text.size());
    hash = (std::rotl(hash, 23) ^ rest) * kFactor;
    hash = (hash ^ (hash >> 32)) * kFactor;
    return static_cast<std::uint32_t>(hash >> 32);
}

bool IsGroup(std::string_view token) {
    return token.size() >= 2 && token.front() == '[' && token.find('[', 1) == token.npos &&
           token.find(']') == token.size() - 1;
}

bool IsQuote(char c) {
    return c == '\'' || c == '"';
}

/// Room for all tokens and values at their longest.
std::size_t MostBytes(const std::vector<std::u16string>& tokens,
                      const std::vector<std::u16string>& values) {
    std::size_t bytes = 0;
    for (const std::u16string& token : tokens)
        bytes += token.size();
    for (const std::u16string& value : values)
        bytes += value.size() * 3;
    return bytes;
}

}  // namespace

TokenIndex::TokenIndex(const std::vector<std::u16string>& arrTokens,
                       const std::vector<std::u16string>& arrValues)
    : entries_(arrTokens.size()), slots_(std::bit_ceil(2 * arrTokens.size() + 1)) {
    text_.reserve(MostBytes(arrTokens, arrValues));
    // From the last to the first: a token is put before those of the same text.
    for (TokenNumber number = UpperBound(); number > 0; --number) {
        const auto i = static_cast<std::size_t>(number);
        Add(number, arrTokens[i], arrValues[i]);
    }
    std::reverse(irregular_.begin(), irregular_.end());
    std::reverse(empty_.begin(), empty_.end());
}

void TokenIndex::Add(TokenNumber number, std::u16string_view token, std::u16string_view value) {
    const std::optional<std::string> ansi = Utf16ToAnsiExactly(token);
    if (!ansi)
        return;
    std::string encoded;
    if (!value.empty()) {
        EncodeUTF8(value, encoded_);
        encoded = BytesToString(encoded_);
    }
    Entry& entry = At(number);
    entry.start = text_.size();
    entry.tokenLength = static_cast<std::uint32_t>(ansi->size());
    entry.valueLength = static_cast<std::uint32_t>(encoded.size());
    entry.hasQuotes = std::any_of(encoded.begin(), encoded.end(), IsQuote);
    text_ += *ansi;
    text_ += encoded;
    if (ansi->empty()) {
        empty_.push_back(number);
    } else if (IsGroup(*ansi)) {
        entry.dependsOnOrder =
            ansi->rfind(kPlaceholderPrefix, 0) != 0 || encoded.find('[') != std::string::npos;
        AddGroup(number);
    } else {
        irregular_.push_back(number);
    }
}

std::size_t TokenIndex::FindSlot(std::string_view token, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    while (slots_[slot].first != 0 &&
           (slots_[slot].hash != hash || Token(slots_[slot].first) != token))
        slot = (slot + 1) & mask;
    return slot;
}

void TokenIndex::AddGroup(TokenNumber number) {
    const std::uint32_t hash = Hash(Token(number));
    Slot& slot = slots_[FindSlot(Token(number), hash)];
    At(number).nextAlike = slot.first;
    slot = {hash, number};
}

TokenNumber TokenIndex::FindGroup(std::string_view group, TokenNumber after) const {
    TokenNumber number = slots_[FindSlot(group, Hash(group))].first;
    while (number != 0 && number <= after)
        number = At(number).nextAlike;
    return number;
}

}  // namespace cvlang
