// Replaces the placeholders of a page.
//
// What comes out is defined by a plain procedure: line by line, token by token in array order,
// every occurrence of the token is replaced by its value, as long as the line still holds the
// beginning of a placeholder. Going through all tokens for every line would take minutes for a
// large installation, so a page is read once and its placeholders are looked up. That comes to the
// same wherever no replacement can make or break another placeholder; a line where one can is taken
// through its tokens in order. docs/architecture.md says why.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "generation/PageScan.h"
#include "generation/PageText.h"
#include "generation/TokenIndex.h"

namespace cvlang {

class PlaceholderSubstitution {
  public:
    /// `useCounts` has an element for each token at least; it grows by one for every line on which
    /// the token is replaced. Both arguments must outlive the object.
    PlaceholderSubstitution(const TokenIndex& tokens, std::vector<std::int32_t>& useCounts);

    /// Appends the page's text to `output`: placeholders replaced, lines ended by CR LF, without
    /// the blank lines at the start and without the last line's end. False when the page holds a
    /// placeholder and there are more tokens than can be numbered (32767); the output is then of no
    /// use.
    bool Translate(std::string_view page, ScriptMode mode, PageText& output);
    /// Takes a page's replacements out of the counts again: it could not be written.
    void Uncount(std::string_view page, ScriptMode mode, PageText& output) {
        step_ = -1;
        Translate(page, mode, output);
        step_ = 1;
    }

    /// Gives the memory back that is kept from page to page.
    void ReleaseMemory();

  private:
    using BracketGroups = std::vector<BracketGroup>::const_iterator;
    struct Page {
        std::string_view text;
        ScriptTracker script;
        PageText& output;
        std::size_t outputStart;
        std::size_t copied = 0;  // up to here the text is in the output
        // A line on which a token was found that had been counted before.
        std::size_t lineStart = 0;
        std::size_t lineEnd = 0;
    };

    std::string_view Normalise(std::string_view page);
    bool DependsOnOrder(std::string_view text, const BracketGroup& group) const;
    void ReplaceLines(Page& page, BracketGroups first, BracketGroups last, std::size_t end);
    BracketGroups ReplaceLineInOrder(Page& page, BracketGroups first, BracketGroups last);
    void ReplaceAtOnce(Page& page, BracketGroups first, BracketGroups last);
    static void CopyUpTo(Page& page, std::size_t position);
    void Count(Page& page, BracketGroups first, BracketGroups last);
    void Count(Page& page, const BracketGroup& group);
    void CountEmptyTokens(std::string_view text, BracketGroups first, BracketGroups last);
    void CountEmptyTokensUpTo(TokenNumber last);
    void SumUpEmptyTokens();

    const TokenIndex& tokens_;
    std::vector<std::int32_t>& useCounts_;
    std::int32_t step_ = 1;  // that counts change by
    // Of the page at hand.
    PageText normalised_;  // when it had other line ends
    PageScan scan_;
    std::vector<BracketGroup> groups_;
    // Per token, where it was last counted. Pages follow one another without ever starting anew.
    std::vector<std::uint64_t> countedAt_;
    std::uint64_t pageStart_ = 0;
    std::uint64_t nextPageStart_ = 1;
    std::vector<std::int32_t> linesByEmptyTokens_;  // how many lines looked at so many empty tokens
};

}  // namespace cvlang
