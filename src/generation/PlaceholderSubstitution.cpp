#include "generation/PlaceholderSubstitution.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "generation/SequentialSubstitution.h"

namespace cvlang {
namespace {

// Tokens are numbered with 16 bits; installations rely on pages being left alone beyond that.
constexpr TokenNumber kMostTokens = std::numeric_limits<std::int16_t>::max();

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
    if (tokens_.IrregularTokens().empty() && !DependOnOrder(groups_.begin(), groups_.end())) {
        ReplaceAtOnce(state, groups_.begin(), groups_.end());
        Count(state, groups_.begin(), groups_.end());
    } else {
        ReplaceByLines(state);
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

/// The page's lines, joined by CR LF, without the last line's end, and outlined.
std::string_view PlaceholderSubstitution::Normalise(std::string_view page) {
    scan_.Scan(page);
    if (!scan_.HasOnlyCrLf()) {
        NormaliseLineEnds(page, scan_, normalised_);
        page = normalised_.View();
        scan_.Scan(page);
    }
    if (page.ends_with(kPageLineEnd))
        page.remove_suffix(kPageLineEnd.size());
    return page;
}

/// Whether it matters in which order the tokens of these groups are replaced.
bool PlaceholderSubstitution::DependOnOrder(BracketGroups first, BracketGroups last) {
    return std::any_of(first, last, [](const BracketGroup& group) {
        // Behind an open bracket the value may become part of another placeholder.
        return group.token != nullptr &&
               (group.isBehindOpenBracket || group.token->DependsOnOrder());
    });
}

void PlaceholderSubstitution::ReplaceByLines(Page& page) {
    for (BracketGroups first = groups_.begin(); first != groups_.end();) {
        const std::size_t start = LineStart(page.text, first->start);
        const std::size_t end = LineEnd(page.text, first->start);
        const BracketGroups last = std::find_if(
            first, groups_.cend(), [end](const BracketGroup& group) { return group.start >= end; });
        CopyUpTo(page, start);
        if (DependOnOrder(first, last) || !ReplaceLineAtOnce(page, first, last, end))
            ReplaceLineInOrder(page, end);
        first = last;
    }
}

/// Replaces the groups of the line that begins where the page has been copied to. False, with
/// nothing done, when a token that is no group may have been on the line at some time.
bool PlaceholderSubstitution::ReplaceLineAtOnce(Page& page, BracketGroups first, BracketGroups last,
                                                std::size_t end) {
    const std::size_t start = page.copied;
    const std::size_t outputStart = page.output.Size();
    ReplaceAtOnce(page, first, last);
    page.output.Append(page.text.substr(page.copied, end - page.copied));
    page.copied = end;
    if (tokens_.MayHoldIrregular(page.text.substr(start, end - start)) ||
        tokens_.MayHoldIrregular(page.output.View().substr(outputStart))) {
        page.output.Truncate(outputStart);
        page.copied = start;
        return false;
    }
    Count(page, first, last);
    return true;
}

void PlaceholderSubstitution::ReplaceLineInOrder(Page& page, std::size_t end) {
    const SequentialSubstitution line(tokens_, page.text.substr(page.copied, end - page.copied),
                                      page.script.IsScript(page.copied));
    page.output.Append(line.Text());
    page.copied = end;
    for (const TokenNumber number : line.Replaced())
        useCounts_[static_cast<std::size_t>(number)] += step_;
    CountEmptyTokensUpTo(line.LookedAt());
}

/// Replaces groups between which the order does not matter.
void PlaceholderSubstitution::ReplaceAtOnce(Page& page, BracketGroups first, BracketGroups last) {
    for (BracketGroups group = first; group != last; ++group) {
        if (group->token == nullptr)
            continue;
        CopyUpTo(page, group->start);
        if (page.script.IsScript(group->start) && group->token->HasQuotes()) {
            AppendEscapedForScript(group->token->Value(), page.output);
        } else {
            page.output.AppendShort(group->token->Value());
        }
        page.copied = group->end;
    }
}

/// A line that became empty at the start of the output is dropped like one that was empty from the
/// first.
void PlaceholderSubstitution::CopyUpTo(Page& page, std::size_t position) {
    if (page.output.Size() == page.outputStart) {
        while (page.text.substr(page.copied, kPageLineEnd.size()) == kPageLineEnd)
            page.copied += kPageLineEnd.size();
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
    const auto index = static_cast<std::size_t>(group.token->Number());
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
                lookedAt = std::max(lookedAt, first->token->Number());
            } else if (IsPlaceholderAt(text, first->start)) {
                lookedAt = tokens_.UpperBound();  // as a placeholder is left
            }
        }
        CountEmptyTokensUpTo(lookedAt);
    }
}

/// Every line contains the empty token, so that all of them up to the last token looked at count as
/// replaced.
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
