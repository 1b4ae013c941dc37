// Replaces the placeholders of a page.
//
// What comes out is defined by a plain procedure: line by line, token by token in array order,
// every occurrence of the token is replaced by its value, as long as the line still holds the
// beginning of a placeholder. Going through all tokens for every line would take minutes for a
// large installation, so a line is read once and its placeholders are looked up. That comes to the
// same wherever no replacement can make or break another placeholder; a line where one can is taken
// through its tokens in order. docs/architecture.md says why.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generation/ScriptTracker.h"
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
    bool Translate(std::string_view page, ScriptMode mode, std::string& output);

  private:
    struct Line {
        std::string_view text;
        std::size_t end;  // its position on the page
        ScriptTracker& script;
    };

    std::size_t FindPlaceholderLine(std::string_view text, std::size_t from) const;
    void TranslateLine(const Line& line, std::string& output);
    bool ReplaceAtOnce(const Line& line, std::string& output);
    std::string ReplaceInOrder(const Line& line);
    const IndexedToken* ReplaceUpToNext(const Line& line, TokenNumber done, std::string& text);
    const IndexedToken* ReplaceGroups(const Line& line, std::string_view text, TokenNumber after,
                                      const IndexedToken* before, std::string& output);
    std::string ReplaceToken(const Line& line, std::string_view text, const IndexedToken& token);
    static void AppendValue(const Line& line, const IndexedToken& token, std::string& output);
    const IndexedToken* NextIrregular(TokenNumber after) const;
    TokenNumber LastReplaced() const;
    void CountReplaced();
    void CountEmptyTokensUpTo(TokenNumber last);
    void SumUpEmptyTokens();

    const TokenIndex& tokens_;
    std::vector<std::int32_t>& useCounts_;
    std::string joinedLines_;
    std::vector<TokenNumber> replaced_;     // on the line at hand, with repetitions
    std::vector<std::uint32_t> countedOn_;  // per token: the line it was last counted on
    std::uint32_t lineNumber_ = 0;
    std::vector<std::int32_t> linesByEmptyTokens_;  // how many lines looked at so many empty tokens
};

}  // namespace cvlang
