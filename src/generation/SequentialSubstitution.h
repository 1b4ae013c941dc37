// Replaces the tokens on a line in array order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "generation/TokenIndex.h"

namespace cvlang {

/// A line with its tokens replaced in array order, as long as it holds the beginning of a
/// placeholder. The tokens between two whose place in the order matters are replaced at once.
class SequentialSubstitution {
  public:
    SequentialSubstitution(const TokenIndex& tokens, std::string_view line, bool isScript);

    const std::string& Text() const { return text_; }
    /// The tokens that were replaced, each once.
    std::vector<TokenNumber> Replaced() const;
    /// The last token that was searched for before the line held no more placeholders.
    TokenNumber LookedAt() const { return lookedAt_; }

  private:
    const IndexedToken* ReplaceUpToNext();
    const IndexedToken* ReplaceGroups(const IndexedToken* before, std::string& output);
    void ReplaceToken(const IndexedToken& token);
    void AppendValue(const IndexedToken& token, std::string& output) const;

    const TokenIndex& tokens_;
    bool isScript_;
    std::string text_;
    TokenNumber lookedAt_ = 0;
    std::vector<TokenNumber> replaced_;  // with repetitions
    PageScan scan_;
    std::vector<BracketGroup> groups_;
};

}  // namespace cvlang
