#include "generation/TokenIndex.h"

#include <bit>
#include <cstring>
#include <optional>
#include <utility>

#include "generation/PageEncoding.h"
#include "platform/Ansi.h"

namespace cvlang {
namespace {

/// Eight bytes at a time: tokens differ mostly in their last letters, which a product spreads over all bits.
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
    return static_cast<std::uint32_t>(hash >> 32);
}

bool IsGroup(std::string_view token) {
    return token.size() >= 2 && token.front() == '[' && token.find_first_of("[]", 1) == token.size() - 1 &&
           token.back() == ']';
}

std::string EncodeValue(std::u16string_view value) {
    std::vector<std::uint8_t> bytes;
    EncodeUTF8(value, bytes);
    return BytesToString(bytes);
}

}  // namespace

TokenIndex::TokenIndex(const std::vector<std::u16string>& arrTokens,
                       const std::vector<std::u16string>& arrValues)
    : entries_(arrTokens.size()),
      slots_(std::bit_ceil(2 * arrTokens.size() + 1)) {
    // Lengths first, views when the text has stopped moving.
    std::vector<std::pair<std::size_t, std::size_t>> lengths(arrTokens.size());
    std::vector<bool> known(arrTokens.size());
    for (std::size_t i = 1; i < arrTokens.size(); ++i) {
        const std::optional<std::string> token = Utf16ToAnsiExactly(arrTokens[i]);
        const std::string value = EncodeValue(arrValues[i]);
        known[i] = token.has_value();
        text_ += token.value_or("");
        text_ += value;
        lengths[i] = {token.value_or("").size(), value.size()};
    }
    const char* position = text_.data();
    for (std::size_t i = 1; i < arrTokens.size(); ++i) {
        const auto [tokenLength, valueLength] = lengths[i];
        entries_[i].token = {position, tokenLength};
        entries_[i].value = {position + tokenLength, valueLength};
        position += tokenLength + valueLength;
        if (known[i])
            Classify(static_cast<TokenNumber>(i));
    }
}

void TokenIndex::Classify(TokenNumber number) {
    Entry& entry = At(number);
    entry.hasQuotes = entry.value.find_first_of("'\"") != std::string_view::npos;
    if (entry.token.empty()) {
        empty_.push_back(number);
    } else if (IsGroup(entry.token)) {
        entry.dependsOnOrder = entry.token.rfind(kPlaceholderPrefix, 0) != 0 ||
                               entry.value.find('[') != std::string_view::npos;
        AddGroup(number);
    } else {
        irregular_.push_back(number);
    }
}

std::size_t TokenIndex::FindSlot(std::string_view token, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    while (slots_[slot].first != 0 &&
           (slots_[slot].hash != hash || At(slots_[slot].first).token != token))
        slot = (slot + 1) & mask;
    return slot;
}

void TokenIndex::AddGroup(TokenNumber number) {
    const std::uint32_t hash = Hash(At(number).token);
    Slot& slot = slots_[FindSlot(At(number).token, hash)];
    if (slot.first == 0) {
        slot = {hash, number, number};
    } else {
        At(std::exchange(slot.last, number)).nextAlike = number;
    }
}

TokenNumber TokenIndex::FindGroup(std::string_view group, TokenNumber after) const {
    TokenNumber number = slots_[FindSlot(group, Hash(group))].first;
    while (number != 0 && number <= after)
        number = At(number).nextAlike;
    return number;
}

}  // namespace cvlang
