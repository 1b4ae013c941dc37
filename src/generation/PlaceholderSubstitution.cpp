#include "generation/PlaceholderSubstitution.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

namespace cvlang {
namespace {

// Deliberate: with more tokens, a page that holds placeholders is not translated.
constexpr TokenNumber kMostTokens = std::numeric_limits<std::int16_t>::max();

using BracketGroups = std::vector<BracketGroup>::const_iterator;

/// The first group that does not begin before the position.
BracketGroups FirstFrom(std::size_t position, BracketGroups first, BracketGroups last) {
    return std::find_if(first, last,
                        [position](const BracketGroup& group) { return group.start >= position; });
}

/// A line with its tokens replaced in array order, as long as it holds the beginning of a
/// placeholder. The tokens between two whose place in the order matters are replaced at once.
class SequentialSubstitution {
  public:
    SequentialSubstitution(const TokenIndex& tokens, std::string_view line, bool isScript)
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

    const std::string& Text() const { return text_; }
    /// The tokens that were replaced, each once.
    std::vector<TokenNumber> Replaced() const {
        std::vector<TokenNumber> numbers = replaced_;
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        return numbers;
    }

    /// The last token that was searched for before the line held no more placeholders.
    TokenNumber LookedAt() const { return lookedAt_; }

  private:
    /// Replaces the tokens after `lookedAt_`, up to the next one whose place in the order matters.
    /// Returns that one; null when there is none.
    const IndexedToken* ReplaceUpToNext() {
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
    const IndexedToken* ReplaceGroups(const IndexedToken* before, std::string& output) {
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
    void ReplaceToken(const IndexedToken& token) {
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

    void AppendValue(const IndexedToken& token, std::string& output) const {
        if (isScript_ && token.hasQuotes) {
            output += EscapeForScript(token.value);
        } else {
            output += token.value;
        }
    }

    const TokenIndex& tokens_;
    bool isScript_;
    std::string text_;
    TokenNumber lookedAt_ = 0;
    std::vector<TokenNumber> replaced_;  // with repetitions
    PageScan scan_;
    std::vector<BracketGroup> groups_;
};

}  // namespace

PlaceholderSubstitution::PlaceholderSubstitution(const TokenIndex& tokens,
                                                 std::vector<std::int32_t>& useCounts)
    : tokens_(tokens),
      useCounts_(useCounts),
      countedAt_(static_cast<std::size_t>(tokens.UpperBound()) + 1),
      linesByEmptyTokens_(tokens.EmptyTokens().size() + 1) {}

bool PlaceholderSubstitution::Translate(std::string_view page, ScriptMode mode, PageText& output) {
    const std::string_view text = Normalise(page);
    if (tokens_.UpperBound() > kMostTokens && HoldsPlaceholder(text))
        return false;
    Page state{text, ScriptTracker(text, scan_, mode), output, output.Size()};
    pageStart_ = nextPageStart_;
    nextPageStart_ += text.size();
    FindBracketGroups(text, scan_, tokens_.HasOtherGroups(), groups_);
    tokens_.LookUp(text, groups_);
    for (BracketGroups first = groups_.begin(); first != groups_.end();) {
        const BracketGroups dependent =
            std::find_if(first, groups_.cend(),
                         [&](const BracketGroup& group) { return DependsOnOrder(text, group); });
        const bool isLast = dependent == groups_.end();
        const std::size_t start = isLast ? text.size() : LineStart(text, dependent->start);
        const BracketGroups last = FirstFrom(start, first, dependent);
        ReplaceLines(state, first, last, start);
        first = isLast ? last : ReplaceLineInOrder(state, last, groups_.end());
    }
    CopyUpTo(state, text.size());
    SumUpEmptyTokens();
    return true;
}

void PlaceholderSubstitution::ReleaseMemory() {
    normalised_ = PageText();
    scan_ = PageScan();
    groups_ = std::vector<BracketGroup>();
}

/// Scans the page. Returns its lines, separated by CR LF, without the last line end.
std::string_view PlaceholderSubstitution::Normalise(std::string_view page) {
    scan_.Scan(page);
    if (!scan_.HasOnlyCrLf()) {
        NormaliseLineEnds(page, normalised_);
        page = normalised_.View();
        scan_.Scan(page);
    }
    if (page.ends_with(kCrLf))
        page.remove_suffix(kCrLf.size());
    return page;
}

/// Whether it matters in which order this group's token and others are replaced.
bool PlaceholderSubstitution::DependsOnOrder(std::string_view text,
                                             const BracketGroup& group) const {
    // Behind an open bracket the value may become part of another placeholder.
    return (group.token != nullptr && (group.isBehindOpenBracket || group.token->dependsOnOrder)) ||
           tokens_.MayHoldPlaceholder(text.substr(group.start));
}

/// Replaces the groups of the lines that are not copied yet, up to `end`. That is done at once,
/// except on lines that may have held an irregular token at some time.
void PlaceholderSubstitution::ReplaceLines(Page& page, BracketGroups first, BracketGroups last,
                                           std::size_t end) {
    const Page before = page;
    const std::size_t outputStart = page.output.Size();
    ReplaceAtOnce(page, first, last);
    CopyUpTo(page, end);
    const std::string_view lines = page.text.substr(before.copied, end - before.copied);
    if (first == last || (!tokens_.HoldsLoosePiece(lines) &&
                          !tokens_.HoldsLoosePiece(page.output.View().substr(outputStart)))) {
        Count(page, first, last);
        return;
    }
    page.output.Truncate(outputStart);
    page.copied = before.copied;
    page.script = before.script;
    const bool isOneLine = lines.find(kCrLf) == std::string_view::npos;
    while (first != last) {
        if (isOneLine) {
            first = ReplaceLineInOrder(page, first, last);
            continue;
        }
        CopyUpTo(page, LineStart(page.text, first->start));
        const std::size_t lineEnd = LineEnd(page.text, first->start);
        const BracketGroups next = FirstFrom(lineEnd, first, last);
        ReplaceLines(page, first, next, lineEnd);
        first = next;
    }
    CopyUpTo(page, end);
}

/// Replaces the tokens in order on the line of the first group. Returns the first group after the
/// line.
PlaceholderSubstitution::BracketGroups PlaceholderSubstitution::ReplaceLineInOrder(
    Page& page, BracketGroups first, BracketGroups last) {
    CopyUpTo(page, LineStart(page.text, first->start));
    const std::size_t end = LineEnd(page.text, first->start);
    const SequentialSubstitution line(tokens_, page.text.substr(page.copied, end - page.copied),
                                      page.script.IsScript(page.copied));
    page.output.Append(line.Text());
    page.copied = end;
    for (const TokenNumber number : line.Replaced())
        useCounts_[static_cast<std::size_t>(number)] += step_;
    CountEmptyTokensUpTo(line.LookedAt());
    return FirstFrom(end, first, last);
}

/// Replaces groups between which the order does not matter.
void PlaceholderSubstitution::ReplaceAtOnce(Page& page, BracketGroups first, BracketGroups last) {
    for (BracketGroups group = first; group != last; ++group) {
        if (group->token == nullptr)
            continue;
        CopyUpTo(page, group->start);
        if (page.script.IsScript(group->start) && group->token->hasQuotes) {
            AppendEscapedForScript(group->token->value, page.output);
        } else {
            page.output.AppendShort(group->token->value);
        }
        page.copied = group->end;
    }
}

/// Drops empty lines at the start of the output, also those that replacements made empty.
void PlaceholderSubstitution::CopyUpTo(Page& page, std::size_t position) {
    if (page.output.Size() == page.outputStart) {
        while (page.copied < position && page.text.substr(page.copied, kCrLf.size()) == kCrLf)
            page.copied += kCrLf.size();
    }
    page.output.Append(page.text.substr(page.copied, position - page.copied));
    page.copied = position;
}

void PlaceholderSubstitution::Count(Page& page, BracketGroups first, BracketGroups last) {
    for (BracketGroups group = first; group != last; ++group) {
        if (group->token != nullptr)
            Count(page, *group);
    }
    if (!tokens_.EmptyTokens().empty())
        CountEmptyTokens(page.text, first, last);
}

void PlaceholderSubstitution::Count(Page& page, const BracketGroup& group) {
    const auto index = static_cast<std::size_t>(group.token->number);
    std::uint64_t& countedAt = countedAt_[index];
    if (countedAt >= pageStart_ && group.start >= page.lineEnd) {
        page.lineStart = LineStart(page.text, group.start);
        page.lineEnd = LineEnd(page.text, group.start);
    }
    if (countedAt >= pageStart_ + page.lineStart)
        return;
    countedAt = pageStart_ + group.start;
    useCounts_[index] += step_;
}

void PlaceholderSubstitution::CountEmptyTokens(std::string_view text, BracketGroups first,
                                               BracketGroups last) {
    while (first != last) {
        const std::size_t end = LineEnd(text, first->start);
        TokenNumber lookedAt = 0;
        for (; first != last && first->start < end; ++first) {
            if (first->token != nullptr) {
                lookedAt = std::max(lookedAt, first->token->number);
            } else if (text.substr(first->start).starts_with(kPlaceholderPrefix)) {
                lookedAt = tokens_.UpperBound();  // as a placeholder is left
            }
        }
        CountEmptyTokensUpTo(lookedAt);
    }
}

/// Every line contains the empty token. Those up to the last token that was searched for on the
/// line count as replaced.
void PlaceholderSubstitution::CountEmptyTokensUpTo(TokenNumber last) {
    const auto& empty = tokens_.EmptyTokens();
    const auto lookedAt = std::upper_bound(empty.begin(), empty.end(), last) - empty.begin();
    ++linesByEmptyTokens_[static_cast<std::size_t>(lookedAt)];
}

void PlaceholderSubstitution::SumUpEmptyTokens() {
    std::int32_t lines = 0;
    for (std::size_t i = tokens_.EmptyTokens().size(); i > 0; --i) {
        lines += std::exchange(linesByEmptyTokens_[i], 0);
        useCounts_[static_cast<std::size_t>(tokens_.EmptyTokens()[i - 1])] += step_ * lines;
    }
}

}  // namespace cvlang
