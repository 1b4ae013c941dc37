// A language's tokens, prepared for finding them in pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "generation/PageScan.h"
#include "translation/TokenMapFile.h"

namespace cvlang {

/// Tokens are known by their index in the array, from 1.
using TokenNumber = std::int32_t;

/// A token as it is looked for and put into pages. Its two texts follow it in memory: looking a
/// placeholder up costs what it takes to fetch this one place.
class IndexedToken {
  public:
    TokenNumber Number() const { return number_; }
    std::string_view Token() const { return {Texts(), tokenLength_}; }
    std::string_view Value() const { return {Texts() + tokenLength_, valueLength_}; }
    /// Whether the value looks different inside a script.
    bool HasQuotes() const { return hasQuotes_; }
    /// Whether it matters in which order this token and others are replaced: its value may bring a
    /// placeholder of its own, or it is no placeholder, which is replaced only while placeholders
    /// are left on the line.
    bool DependsOnOrder() const { return dependsOnOrder_; }

  private:
    friend class TokenIndex;
    const char* Texts() const { return reinterpret_cast<const char*>(this + 1); }

    const IndexedToken* nextAlike_;  // the next token of the same text
    TokenNumber number_;
    std::uint32_t tokenLength_;
    std::uint32_t valueLength_;
    bool hasQuotes_;
    bool dependsOnOrder_;
};

class TokenIndex {
  public:
    /// Both arrays begin with an unused element 0 and are equally long. Tokens are turned into ANSI
    /// bytes (one with a character that the code page lacks is found nowhere), values into UTF-8.
    TokenIndex(const TextArray& arrTokens, const TextArray& arrValues);

    TokenNumber UpperBound() const { return upperBound_; }

    /// Whether there are tokens that are groups without beginning as placeholders do.
    bool HasOtherGroups() const { return hasOtherGroups_; }

    /// The first token behind `after` whose text is this group's; null when there is none.
    const IndexedToken* FindGroup(std::string_view group, TokenNumber after) const;

    /// Sets the token of each of the page's groups: the first one of its text, if there is one.
    /// Many at once, because the time that fetching from memory takes then passes only once.
    void LookUp(std::string_view page, std::vector<BracketGroup>& groups) const;

    // Tokens that are no bracket groups are irregular: they have to be searched for one by one.

    /// The first irregular token behind `after` that may be in the text: its longest piece without
    /// brackets is. Null when there is none.
    const IndexedToken* FindIrregular(std::string_view text, TokenNumber after) const;
    /// Whether an irregular token may hold the placeholder, or the unclosed one, that the text
    /// begins with.
    bool MayHoldPlaceholder(std::string_view text) const;
    /// Whether the text holds the longest piece of an irregular token that holds no placeholder.
    bool HoldsLoosePiece(std::string_view text) const;
    /// Blank lines of the map file, in order.
    const std::vector<TokenNumber>& EmptyTokens() const { return empty_; }

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t place = 0;  // of the first token with this text, in units of its alignment
    };

    const IndexedToken* At(const Slot& slot) const;
    std::size_t FindSlot(std::string_view token, std::uint32_t hash) const;
    void Add(TokenNumber number, std::u16string_view token, std::u16string_view value);
    IndexedToken& Store(TokenNumber number, std::string_view token, std::string_view value);
    void AddGroup(IndexedToken& token);
    void AddIrregular(const IndexedToken& token);
    void SortPlaceholderStarts();

    TokenNumber upperBound_;
    std::unique_ptr<std::byte[]> memory_;  // all tokens with their texts, one after the other
    std::size_t used_;
    std::vector<Slot> slots_;  // a power of two, at least half of them free
    bool hasOtherGroups_ = false;
    struct Irregular {
        const IndexedToken* token;
        std::string_view piece;  // the longest one without brackets
    };
    std::vector<Irregular> irregular_;                 // in order
    std::vector<std::string_view> loosePieces_;        // of those without a placeholder
    std::vector<std::string_view> placeholderStarts_;  // of the others; sorted, none begins another
    std::vector<TokenNumber> empty_;
    std::vector<std::uint8_t> encoded_;  // the value at hand
};

}  // namespace cvlang
