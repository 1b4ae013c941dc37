#include "generation/TokenIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>
#include <optional>

#include "generation/PageEncoding.h"
#include "platform/Ansi.h"

namespace cvlang {
namespace {

std::uint64_t EightBytes(const char* from) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

/// Eight bytes at a time, the last ones overlapping. The last product spreads what differs, mostly
/// a few letters, over the bits that are used.
std::uint32_t Hash(std::string_view text) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    std::uint64_t hash = text.size();
    const auto add = [&hash](std::uint64_t chunk) {
        hash = (std::rotl(hash, 23) ^ chunk) * kFactor;
    };
    if (text.size() < 8) {
        for (const char c : text)
            add(static_cast<unsigned char>(c));
    } else {
        for (std::size_t i = 0; i + 8 < text.size(); i += 8)
            add(EightBytes(text.data() + i));
        add(EightBytes(text.data() + text.size() - 8));
    }
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

constexpr std::size_t kAlignment = alignof(IndexedToken);

/// Room for all tokens and values at their longest.
std::size_t MostBytes(const std::vector<std::u16string>& tokens,
                      const std::vector<std::u16string>& values) {
    std::size_t bytes = kAlignment + tokens.size() * (sizeof(IndexedToken) + kAlignment);
    for (const std::u16string& token : tokens)
        bytes += token.size() * 2;
    for (const std::u16string& value : values)
        bytes += value.size() * 3;
    return bytes;
}

}  // namespace

TokenIndex::TokenIndex(const std::vector<std::u16string>& arrTokens,
                       const std::vector<std::u16string>& arrValues)
    : upperBound_(static_cast<TokenNumber>(arrTokens.size()) - 1),
      memory_(std::make_unique_for_overwrite<std::byte[]>(MostBytes(arrTokens, arrValues))),
      used_(kAlignment),  // place 0 stands for none
      slots_(std::bit_ceil(arrTokens.size() + arrTokens.size() / 4 + 1)) {
    // From the last to the first: a token is put before those of the same text.
    for (TokenNumber number = upperBound_; number > 0; --number) {
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
    if (ansi->empty()) {
        empty_.push_back(number);
        return;
    }
    encoded_.clear();
    EncodeUTF8(value, encoded_);
    IndexedToken& stored = Store(number, *ansi, BytesToString(encoded_));
    if (IsGroup(*ansi)) {
        AddGroup(stored);
    } else {
        irregular_.push_back(&stored);
    }
}

IndexedToken& TokenIndex::Store(TokenNumber number, std::string_view token,
                                std::string_view value) {
    auto* stored = new (memory_.get() + used_) IndexedToken;
    stored->nextAlike_ = nullptr;
    stored->number_ = number;
    stored->tokenLength_ = static_cast<std::uint32_t>(token.size());
    stored->valueLength_ = static_cast<std::uint32_t>(value.size());
    stored->hasQuotes_ = std::any_of(value.begin(), value.end(), IsQuote);
    stored->dependsOnOrder_ =
        !token.starts_with(kPlaceholderPrefix) || value.find('[') != std::string_view::npos;
    auto* texts = reinterpret_cast<char*>(memory_.get() + used_ + sizeof(IndexedToken));
    token.copy(texts, token.size());
    value.copy(texts + token.size(), value.size());
    used_ += sizeof(IndexedToken) + token.size() + value.size();
    used_ += (kAlignment - used_ % kAlignment) % kAlignment;
    return *stored;
}

const IndexedToken* TokenIndex::At(const Slot& slot) const {
    return slot.place == 0
               ? nullptr
               : reinterpret_cast<const IndexedToken*>(memory_.get() + slot.place * kAlignment);
}

std::size_t TokenIndex::FindSlot(std::string_view token, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    while (slots_[slot].place != 0 &&
           (slots_[slot].hash != hash || At(slots_[slot])->Token() != token))
        slot = (slot + 1) & mask;
    return slot;
}

void TokenIndex::AddGroup(IndexedToken& token) {
    const std::uint32_t hash = Hash(token.Token());
    Slot& slot = slots_[FindSlot(token.Token(), hash)];
    token.nextAlike_ = At(slot);
    const auto offset = reinterpret_cast<std::byte*>(&token) - memory_.get();
    slot = {hash, static_cast<std::uint32_t>(static_cast<std::size_t>(offset) / kAlignment)};
}

const IndexedToken* TokenIndex::FindGroup(std::string_view group, TokenNumber after) const {
    const IndexedToken* token = At(slots_[FindSlot(group, Hash(group))]);
    while (token != nullptr && token->number_ <= after)
        token = token->nextAlike_;
    return token;
}

}  // namespace cvlang
