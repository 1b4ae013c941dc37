// A language's tokens, prepared for finding them in pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "generation/PageScan.h"
#include "translation/TokenMapFile.h"

namespace cvlang {

/// Tokens are known by their index in the array, from 1.
using TokenNumber = std::int32_t;

/// A token as it is searched for in pages and replaced.
struct IndexedToken {
    std::string_view token;
    std::string_view value;
    TokenNumber number;
    /// Whether the value is written differently inside a script.
    bool hasQuotes;
    /// Whether the order matters in which this token and others are replaced: its value may bring a
    /// placeholder of its own, or the token is no placeholder. Such a token is replaced only while
    /// the line holds placeholders.
    bool dependsOnOrder;
    const IndexedToken* nextAlike = nullptr;  // the next token of the same text
};

class TokenIndex {
  public:
    /// Both arrays begin with an unused element 0 and are equally long. Tokens are converted to
    /// ANSI bytes, values to UTF-8. A token with a character that the code page lacks is never
    /// found.
    TokenIndex(const TextArray& arrTokens, const TextArray& arrValues);
    TokenIndex(const TokenIndex&) = delete;
    TokenIndex& operator=(const TokenIndex&) = delete;

    TokenNumber UpperBound() const { return upperBound_; }

    /// Whether there are tokens that are groups without beginning as placeholders do.
    bool HasOtherGroups() const { return hasOtherGroups_; }

    /// The first token after `after` whose text is this group's; null when there is none.
    const IndexedToken* FindGroup(std::string_view group, TokenNumber after) const;

    /// Sets the token of each of the page's groups: the first one of its text, or null. Done for
    /// many groups at once, so that their cache misses overlap.
    void LookUp(std::string_view page, std::vector<BracketGroup>& groups) const;

    // Tokens that are no bracket groups are irregular: each of them is searched for.

    /// The first irregular token after `after` that the text may hold, because it holds the longest
    /// piece of the token without brackets. Null when there is none.
    const IndexedToken* FindIrregular(std::string_view text, TokenNumber after) const;
    /// Whether an irregular token may hold the placeholder, or the unclosed one, that the text
    /// begins with.
    bool MayHoldPlaceholder(std::string_view text) const;
    /// Whether the text holds the longest piece of an irregular token that holds no placeholder.
    bool HoldsLoosePiece(std::string_view text) const;
    /// Blank lines of the map file, in order.
    const std::vector<TokenNumber>& EmptyTokens() const { return empty_; }

  private:
    void Add(TokenNumber number, std::u16string_view token, std::u16string_view value);
    std::string_view Store(std::string_view text);
    std::size_t FindSlot(std::string_view token, std::size_t hash) const;
    void AddGroup(IndexedToken& token, std::size_t hash);
    void AddIrregular(const IndexedToken& token);
    void SortPlaceholderStarts();

    TokenNumber upperBound_;
    std::string texts_;                 // of all tokens; never grows beyond its first capacity
    std::vector<IndexedToken> tokens_;  // the same holds for these
    // A hash table of the first tokens of their texts: a power of two, at least half of it free.
    std::vector<const IndexedToken*> slots_;
    bool hasOtherGroups_ = false;
    // In order, each with its longest part without brackets.
    std::vector<std::pair<std::string_view, const IndexedToken*>> irregular_;
    std::vector<std::string_view> loosePieces_;        // of those without a placeholder
    std::vector<std::string_view> placeholderStarts_;  // of the others; sorted, none begins another
    std::vector<TokenNumber> empty_;
    std::vector<std::uint8_t> encoded_;  // of the last value that was added
};

}  // namespace cvlang
