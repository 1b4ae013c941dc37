#include "generation/TokenIndex.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <iterator>
#include <optional>

#include "platform/Ansi.h"

namespace cvlang {
namespace {

constexpr std::hash<std::string_view> kHash;

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

/// Enough for the texts in any code page, and for reading behind the last of them.
std::size_t MostBytes(const TextArray& tokens, const TextArray& values) {
    std::size_t bytes = PageText::kReadable;
    for (const auto& token : tokens)
        bytes += token.size() * 4;
    for (const auto& value : values)
        bytes += value.size() * 3;
    return bytes;
}

}  // namespace

TokenIndex::TokenIndex(const TextArray& arrTokens, const TextArray& arrValues)
    : upperBound_(static_cast<TokenNumber>(arrTokens.size()) - 1),
      slots_(std::bit_ceil(2 * arrTokens.size())) {
    texts_.reserve(MostBytes(arrTokens, arrValues));
    tokens_.reserve(arrTokens.size());
    // From the last to the first: a token is put before those of the same text.
    for (std::size_t i = arrTokens.size() - 1; i > 0; --i)
        Add(static_cast<TokenNumber>(i), arrTokens[i], arrValues[i]);
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
    // The slot is fetched while the value is encoded.
    const std::size_t hash = kHash(*ansi);
    __builtin_prefetch(&slots_[hash & (slots_.size() - 1)]);
    encoded_.clear();
    EncodeUTF8(value, encoded_);
    const std::string_view bytes = BytesToString(encoded_);
    const bool hasQuotes = bytes.find('\'') != bytes.npos || bytes.find('"') != bytes.npos;
    const bool dependsOnOrder =
        !ansi->starts_with(kPlaceholderPrefix) || bytes.find('[') != std::string_view::npos;
    IndexedToken& stored = tokens_.emplace_back(
        IndexedToken{Store(*ansi), Store(bytes), number, hasQuotes, dependsOnOrder});
    if (IsGroup(*ansi)) {
        AddGroup(stored, hash);
    } else {
        AddIrregular(stored);
    }
}

std::string_view TokenIndex::Store(std::string_view text) {
    const std::size_t start = texts_.size();
    texts_ += text;
    return std::string_view(texts_).substr(start);
}

/// The slot of the tokens of this text, or the free one for them.
std::size_t TokenIndex::FindSlot(std::string_view token, std::size_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    while (slots_[slot] != nullptr && slots_[slot]->token != token)
        slot = (slot + 1) & mask;
    return slot;
}

void TokenIndex::AddGroup(IndexedToken& token, std::size_t hash) {
    hasOtherGroups_ = hasOtherGroups_ || !token.token.starts_with(kPlaceholderPrefix);
    const IndexedToken*& slot = slots_[FindSlot(token.token, hash)];
    token.nextAlike = slot;
    slot = &token;
}

const IndexedToken* TokenIndex::FindGroup(std::string_view group, TokenNumber after) const {
    const IndexedToken* token = slots_[FindSlot(group, kHash(group))];
    while (token != nullptr && token->number <= after)
        token = token->nextAlike;
    return token;
}

void TokenIndex::LookUp(std::string_view page, std::vector<BracketGroup>& groups) const {
    for (BracketGroup& group : groups) {
        group.hash = kHash(group.In(page));
        __builtin_prefetch(&slots_[group.hash & (slots_.size() - 1)]);
    }
    for (BracketGroup& group : groups)
        group.token = slots_[FindSlot(group.In(page), group.hash)];
}

void TokenIndex::AddIrregular(const IndexedToken& token) {
    const std::string_view text = token.token;
    irregular_.emplace_back(LongestPiece(text), &token);
    const std::size_t start = text.find(kPlaceholderPrefix);
    if (start == std::string_view::npos) {
        loosePieces_.push_back(irregular_.back().first);
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
    for (const auto& [piece, token] : irregular_) {
        if (token->number > after && text.find(piece) != text.npos)
            return token;
    }
    return nullptr;
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

}  // namespace cvlang
