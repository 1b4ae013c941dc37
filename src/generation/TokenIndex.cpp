#include "generation/TokenIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <iterator>
#include <new>
#include <optional>
#include <string>

#include "platform/Ansi.h"

namespace cvlang {
namespace {

std::uint64_t EightBytes(const char* from) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

constexpr std::uint64_t kFactors[] = {0x9E3779B97F4A7C15, 0xC2B2AE3D27D4EB4F, 0x165667B19E3779F9,
                                      0xD6E8FEB86659FD93, 0xA0761D6478BD642F};

// Nearly all tokens are of such a size. They are read as five pieces, the last ones overlapping,
// instead of in a loop whose length the processor would have to guess.
constexpr bool IsOfUsualSize(std::size_t size) {
    return size >= 8 && size <= 8 * std::size(kFactors);
}

std::uint64_t Piece(const char* text, std::size_t size, std::size_t number) {
    return EightBytes(text + std::min(8 * number, size - 8));
}

std::uint32_t Hash(std::string_view text) {
    std::uint64_t hash = text.size();
    if (IsOfUsualSize(text.size())) {
        for (std::size_t i = 0; i < std::size(kFactors); ++i)
            hash += Piece(text.data(), text.size(), i) * kFactors[i];
    } else {
        for (const char c : text)
            hash = (hash ^ static_cast<unsigned char>(c)) * kFactors[0];
    }
    // Spreads what differs, mostly a few letters, over the bits that are used.
    hash = (hash ^ (hash >> 32)) * kFactors[0];
    return static_cast<std::uint32_t>(hash >> 32);
}

bool AreEqual(std::string_view a, std::string_view b) {
    const std::size_t size = a.size();
    if (size != b.size())
        return false;
    if (!IsOfUsualSize(size))
        return a == b;
    std::uint64_t difference = 0;
    for (std::size_t i = 0; i < std::size(kFactors); ++i)
        difference |= Piece(a.data(), size, i) ^ Piece(b.data(), size, i);
    return difference == 0;
}

bool IsGroup(std::string_view token) {
    return token.size() >= 2 && token.front() == '[' && token.find('[', 1) == token.npos &&
           token.find(']') == token.size() - 1;
}

/// The longest part of a token that holds no brackets.
std::string_view LongestPiece(std::string_view token) {
    std::string_view longest;
    while (!token.empty()) {
        const std::string_view piece = token.substr(0, token.find_first_of("[]"));
        if (piece.size() > longest.size())
            longest = piece;
        token.remove_prefix(std::min(piece.size() + 1, token.size()));
    }
    return longest;
}

bool IsQuote(char c) {
    return c == '\'' || c == '"';
}

constexpr std::size_t kAlignment = alignof(IndexedToken);

/// Room for all tokens, in whatever code page, and values at their longest.
std::size_t MostBytes(const TextArray& tokens, const TextArray& values) {
    std::size_t bytes =
        PageText::kReadable + kAlignment + tokens.size() * (sizeof(IndexedToken) + kAlignment);
    for (const auto& token : tokens)
        bytes += token.size() * 4;
    for (const auto& value : values)
        bytes += value.size() * 3;
    return bytes;
}

}  // namespace

TokenIndex::TokenIndex(const TextArray& arrTokens, const TextArray& arrValues)
    : upperBound_(static_cast<TokenNumber>(arrTokens.size()) - 1),
      memory_(std::make_unique_for_overwrite<std::byte[]>(MostBytes(arrTokens, arrValues))),
      used_(kAlignment),  // place 0 stands for none
      slots_(std::bit_ceil(2 * arrTokens.size())) {
    // From the last to the first: a token is put before those of the same text.
    for (TokenNumber number = upperBound_; number > 0; --number) {
        const auto i = static_cast<std::size_t>(number);
        Add(number, arrTokens[i], arrValues[i]);
    }
    std::reverse(irregular_.begin(), irregular_.end());
    SortPlaceholderStarts();
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
        AddIrregular(stored);
    }
}

IndexedToken& TokenIndex::Store(TokenNumber number, std::string_view token,
                                std::string_view value) {
    auto* stored = new (memory_.get() + used_) IndexedToken;
    stored->nextAlike_ = nullptr;
    stored->number_ = number;
    stored->dependsOnOrder_ =
        !token.starts_with(kPlaceholderPrefix) || value.find('[') != std::string_view::npos;
    stored->tokenLength_ = static_cast<std::uint32_t>(token.size());
    stored->valueLength_ = static_cast<std::uint32_t>(value.size());
    stored->hasQuotes_ = std::any_of(value.begin(), value.end(), IsQuote);
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
           (slots_[slot].hash != hash || !AreEqual(At(slots_[slot])->Token(), token)))
        slot = (slot + 1) & mask;
    return slot;
}

void TokenIndex::AddGroup(IndexedToken& token) {
    hasOtherGroups_ = hasOtherGroups_ || !token.Token().starts_with(kPlaceholderPrefix);
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

void TokenIndex::AddIrregular(const IndexedToken& token) {
    const std::string_view text = token.Token();
    irregular_.push_back({&token, LongestPiece(text)});
    const std::size_t start = text.find(kPlaceholderPrefix);
    if (start == std::string_view::npos) {
        loosePieces_.push_back(irregular_.back().piece);
        return;
    }
    const std::size_t end = text.find_first_of("[]", start + 1);
    const std::size_t closing = end != std::string_view::npos && text[end] == ']' ? 1 : 0;
    placeholderStarts_.push_back(text.substr(start, end - start + closing));
}

/// Leaves those out that begin with another one. Then only the one that sorts before a text, or is
/// equal, can be its beginning.
void TokenIndex::SortPlaceholderStarts() {
    std::sort(placeholderStarts_.begin(), placeholderStarts_.end());
    const auto last = std::unique(
        placeholderStarts_.begin(), placeholderStarts_.end(),
        [](std::string_view shorter, std::string_view text) { return text.starts_with(shorter); });
    placeholderStarts_.erase(last, placeholderStarts_.end());
}

const IndexedToken* TokenIndex::FindIrregular(std::string_view text, TokenNumber after) const {
    const auto found =
        std::find_if(irregular_.begin(), irregular_.end(), [&](const Irregular& irregular) {
            return irregular.token->Number() > after &&
                   text.find(irregular.piece) != std::string_view::npos;
        });
    return found == irregular_.end() ? nullptr : found->token;
}

bool TokenIndex::MayHoldPlaceholder(std::string_view text) const {
    if (placeholderStarts_.empty())
        return false;
    const auto next = std::upper_bound(placeholderStarts_.begin(), placeholderStarts_.end(), text);
    return next != placeholderStarts_.begin() && text.starts_with(*std::prev(next));
}

bool TokenIndex::HoldsLoosePiece(std::string_view text) const {
    return std::any_of(loosePieces_.begin(), loosePieces_.end(), [text](std::string_view piece) {
        return text.find(piece) != std::string_view::npos;
    });
}

void TokenIndex::LookUp(std::string_view page, std::vector<BracketGroup>& groups) const {
    for (BracketGroup& group : groups) {
        group.hash = Hash(group.In(page));
        __builtin_prefetch(&slots_[group.hash & (slots_.size() - 1)]);
    }
    for (BracketGroup& group : groups)
        group.token = At(slots_[FindSlot(group.In(page), group.hash)]);
}

}  // namespace cvlang
