#include "generation/SequentialSubstitution.h"

#include <algorithm>
#include <cstddef>

namespace cvlang {

SequentialSubstitution::SequentialSubstitution(const TokenIndex& tokens, std::string_view line,
                                               bool isScript)
    : tokens_(tokens), isScript_(isScript), text_(line) {
    while (HoldsPlaceholder(text_)) {
        const std::size_t replacedBefore = replaced_.size();
        const IndexedToken* next = ReplaceUpToNext();
        if (!HoldsPlaceholder(text_)) {
            for (std::size_t i = replacedBefore; i < replaced_.size(); ++i)
                lookedAt_ = std::max(lookedAt_, replaced_[i]);
        } else if (next == nullptr) {
            lookedAt_ = tokens_.UpperBound();
            break;
        } else {
            lookedAt_ = next->number;
            ReplaceToken(*next);
        }
    }
}

std::vector<TokenNumber> SequentialSubstitution::Replaced() const {
    std::vector<TokenNumber> numbers = replaced_;
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

/// Replaces the tokens after `lookedAt_`, up to the next one whose place in the order matters.
/// Returns that one; null when there is none.
const IndexedToken* SequentialSubstitution::ReplaceUpToNext() {
    const auto replacedBefore = static_cast<std::ptrdiff_t>(replaced_.size());
    const IndexedToken* next = tokens_.FindIrregular(text_, lookedAt_);
    for (;;) {
        std::string changed;
        const IndexedToken* found = ReplaceGroups(next, changed);
        const IndexedToken* irregular = tokens_.FindIrregular(changed, lookedAt_);
        if (irregular != nullptr && (found == nullptr || irregular->number < found->number))
            found = irregular;
        if (found == next) {
            text_.swap(changed);
            return next;
        }
        // The replacements brought an earlier one: only tokens before that one may be replaced.
        replaced_.erase(replaced_.begin() + replacedBefore, replaced_.end());
        next = found;
    }
}

/// Appends the text with groups replaced: those that are tokens after `lookedAt_` and before
/// `before` (null: up to the last) whose place in the order does not matter. Returns the first
/// token between them whose place does matter, or else `before`.
const IndexedToken* SequentialSubstitution::ReplaceGroups(const IndexedToken* before,
                                                          std::string& output) {
    const std::string_view text = text_;
    scan_.Scan(text);
    FindBracketGroups(text, scan_, tokens_.HasOtherGroups(), groups_);
    std::size_t copied = 0;
    for (const BracketGroup& group : groups_) {
        const IndexedToken* token = tokens_.FindGroup(group.In(text), lookedAt_);
        if (token == nullptr || (before != nullptr && token->number >= before->number))
            continue;
        // Behind an open bracket the value may become part of another placeholder.
        if (group.isBehindOpenBracket || token->dependsOnOrder) {
            before = token;
            continue;
        }
        output += text.substr(copied, group.start - copied);
        AppendValue(*token, output);
        replaced_.push_back(token->number);
        copied = group.end;
    }
    output += text.substr(copied);
    return before;
}

/// Replaces every occurrence of an irregular or order-dependent token.
void SequentialSubstitution::ReplaceToken(const IndexedToken& token) {
    std::string output;
    std::size_t copied = 0;
    std::size_t found = text_.find(token.token);
    if (found != std::string::npos)
        replaced_.push_back(token.number);
    while (found != std::string::npos) {
        output.append(text_, copied, found - copied);
        AppendValue(token, output);
        copied = found + token.token.size();
        found = text_.find(token.token, copied);
    }
    output.append(text_, copied);
    text_.swap(output);
}

void SequentialSubstitution::AppendValue(const IndexedToken& token, std::string& output) const {
    if (isScript_ && token.hasQuotes) {
        output += EscapeForScript(token.value);
    } else {
        output += token.value;
    }
}

}  // namespace cvlang
