// Replaces the placeholders of a page.
//
// The result is defined by a plain procedure. For each line and each token in array order, every
// occurrence of the token is replaced by its value, while the line holds the beginning of a
// placeholder. Searching each line for all tokens would take minutes for a large installation.
// Therefore the page is read once, and its placeholders are looked up. The result is the same where
// no replacement can make or break another placeholder. On other lines the tokens are replaced in
// order. docs/architecture.md says why.
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
    /// placeholder and there are more than 32767 tokens; the output is then undefined.
    bool Translate(std::string_view page, ScriptMode mode, PageText& output);
    /// Subtracts the replacements of a page from the counts, because it could not be written.
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
    // Of the current page.
    PageText normalised_;  // when it had other line ends
    PageScan scan_;
    std::vector<BracketGroup> groups_;
    // Per token, where it was last counted. Positions increase from page to page.
    std::vector<std::uint64_t> countedAt_;
    std::uint64_t pageStart_ = 0;
    std::uint64_t nextPageStart_ = 1;
    std::vector<std::int32_t> linesByEmptyTokens_;  // index: the number of empty tokens counted
};

}  // namespace cvlang
