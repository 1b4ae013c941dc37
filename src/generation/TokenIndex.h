// A language's tokens, prepared for finding them in pages.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cvlang {

/// What every placeholder begins with. Lines without it are never looked at.
inline constexpr std::string_view kPlaceholderPrefix = "[CV_TXT-";

/// Tokens are known by their index in the array, from 1; 0 stands for none.
using TokenNumber = std::int32_t;

class TokenIndex {
  public:
    /// Both arrays begin with an unused element 0 and are equally long. Tokens are turned into ANSI
    /// bytes (one with a character that the code page lacks is found nowhere), values into UTF-8.
    TokenIndex(const std::vector<std::u16string>& arrTokens,
               const std::vector<std::u16string>& arrValues);

    TokenNumber UpperBound() const { return static_cast<TokenNumber>(entries_.size()) - 1; }
    std::string_view Token(TokenNumber number) const {
        return {text_.data() + At(number).start, At(number).tokenLength};
    }
    std::string_view Value(TokenNumber number) const {
        return {text_.data() + At(number).start + At(number).tokenLength, At(number).valueLength};
    }
    /// Whether the value looks different inside a script.
    bool HasQuotes(TokenNumber number) const { return At(number).hasQuotes; }
    /// Whether it matters in which order this token and others are replaced: its value may bring a
    /// placeholder of its own, or it is no placeholder, which is replaced only while placeholders
    /// are left on the line.
    bool DependsOnOrder(TokenNumber number) const { return At(number).dependsOnOrder; }

    /// The first token behind `after` whose text is this group, a text from "[" to "]" without
    /// further brackets.
    TokenNumber FindGroup(std::string_view group, TokenNumber after) const;

    /// Tokens that are not such a group, in order. They have to be searched for one by one.
    const std::vector<TokenNumber>& IrregularTokens() const { return irregular_; }
    /// Blank lines of the map file, in order.
    const std::vector<TokenNumber>& EmptyTokens() const { return empty_; }

  private:
    // Entries and slots are kept small: looking a placeholder up costs what it takes to fetch them
    // from memory.
    struct Entry {
        std::size_t start = 0;  // of the token in text_; its value follows it
        std::uint32_t tokenLength = 0;
        std::uint32_t valueLength = 0;
        TokenNumber nextAlike = 0;  // the next token of the same text
        bool hasQuotes = false;
        bool dependsOnOrder = false;
    };
    struct Slot {
        std::uint32_t hash = 0;
        TokenNumber first = 0;
    };

    const Entry& At(TokenNumber number) const { return entries_[static_cast<std::size_t>(number)]; }
    Entry& At(TokenNumber number) { return entries_[static_cast<std::size_t>(number)]; }
    std::size_t FindSlot(std::string_view token, std::uint32_t hash) const;
    void Add(TokenNumber number, std::u16string_view token, std::u16string_view value);
    void AddGroup(TokenNumber number);

    std::vector<std::uint8_t> encoded_;  // the value at hand
    std::string text_;                   // all tokens and values, one after the other
    std::vector<Entry> entries_;
    std::vector<Slot> slots_;  // a power of two, at least half of them free
    std::vector<TokenNumber> irregular_;
    std::vector<TokenNumber> empty_;
};

}  // namespace cvlang
