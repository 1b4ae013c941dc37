#include "generation/PlaceholderSubstitution.h"

#include <algorithm>
#include <limits>

#include "generation/LineInOrder.h"
#include "generation/PageEncoding.h"
#include "generation/PageLines.h"
#include "generation/Placeholders.h"

namespace cvlang {
namespace {

// Tokens are numbered with 16 bits; installations rely on pages being left alone beyond that.
constexpr TokenNumber kMostTokens = std::numeric_limits<std::int16_t>::max();

std::size_t LineStart(std::string_view text, std::size_t position) {
    // Without a line's end before it, npos + 1 is the page's start.
    return text.rfind('\n', position) + 1;
}

std::size_t LineEnd(std::string_view text, std::size_t position) {
    return std::min(text.find('\r', position), text.size());
}

}  // namespace

PlaceholderSubstitution::PlaceholderSubstitution(const TokenIndex& tokens,
                                                 std::vector<std::int32_t>& useCounts)
    : tokens_(tokens),
      useCounts_(useCounts),
      countedAt_(static_cast<std::size_t>(tokens.UpperBound()) + 1) {}

bool PlaceholderSubstitution::Translate(std::string_view page, ScriptMode mode, PageText& output) {
    const std::string_view text = Outline(page);
    if (tokens_.UpperBound() > kMostTokens && HoldsPlaceholder(text))
        return false;
    Page state{text, ScriptTracker(text, outline_, mode), output, output.Size()};
    FindGroups(text);
    if (std::any_of(groups_.begin(), groups_.end(),
                    [this](const Group& group) { return DependsOnOrder(group); })) {
        ReplaceByLines(state);
    } else {
        ReplaceAtOnce(state, groups_.begin(), groups_.end());
    }
    CopyUpTo(state, text.size());
    pageStart_ += text.size();
    return true;
}

/// The page's lines, joined by CR LF, without the last line's end, and outlined.
std::string_view PlaceholderSubstitution::Outline(std::string_view page) {
    outline_.Take(page);
    if (!outline_.HasOnlyPairs()) {
        pageWithPairs_ = WithPairs(page);
        page = pageWithPairs_;
        outline_.Take(page);
    }
    if (page.ends_with(kPageLineEnd))
        page.remove_suffix(kPageLineEnd.size());
    return page;
}

void PlaceholderSubstitution::FindGroups(std::string_view text) {
    constexpr std::size_t kNone = std::string_view::npos;
    groups_.clear();
    bool isBehindOpenBracket = false;
    std::size_t open = kNone;
    const auto note = [&](std::size_t end) {
        if (IsPlaceholderAt(text, open) || (end != open && tokens_.HasOtherGroups()))
            groups_.push_back({open, end, isBehindOpenBracket});
        isBehindOpenBracket = end == open;
    };
    outline_.ForEachBracket([&](std::size_t place) {
        const bool closes = text[place] == ']';
        if (open != kNone)
            note(closes ? place + 1 : open);
        open = closes ? kNone : place;
    });
    if (open != kNone)
        note(open);
    tokens_.FindGroups(text, groups_);
}

/// Whether it matters in which order tokens are replaced on the line of that group.
bool PlaceholderSubstitution::DependsOnOrder(const Group& group) const {
    // Behind an open bracket the value may become part of another placeholder.
    return !tokens_.IrregularTokens().empty() ||
           (group.token != nullptr && (group.isBehindOpenBracket || group.token->DependsOnOrder()));
}

void PlaceholderSubstitution::ReplaceByLines(Page& page) {
    for (Groups first = groups_.begin(); first != groups_.end();) {
        const std::size_t end = LineEnd(page.text, first->start);
        const Groups last = std::find_if(first, groups_.cend(),
                                         [end](const Group& group) { return group.start >= end; });
        if (std::any_of(first, last,
                        [this](const Group& group) { return DependsOnOrder(group); })) {
            ReplaceLineInOrder(page, LineStart(page.text, first->start), end);
        } else {
            ReplaceAtOnce(page, first, last);
        }
        first = last;
    }
}

void PlaceholderSubstitution::ReplaceLineInOrder(Page& page, std::size_t start, std::size_t end) {
    CopyUpTo(page, start);
    const LineInOrder line(tokens_, page.text.substr(start, end - start),
                           page.script.IsScript(start));
    page.output.Append(line.Text());
    page.copied = end;
    for (const TokenNumber number : line.Replaced())
        ++useCounts_[static_cast<std::size_t>(number)];
    CountEmptyTokensUpTo(line.LookedAt());
}

/// Replaces groups between which the order does not matter.
void PlaceholderSubstitution::ReplaceAtOnce(Page& page, Groups first, Groups last) {
    for (Groups group = first; group != last; ++group) {
        if (group->token == nullptr)
            continue;
        CopyUpTo(page, group->start);
        if (page.script.IsScript(group->start) && group->token->HasQuotes()) {
            AppendEscapedForScript(group->token->Value(), page.output);
        } else {
            page.output.AppendShort(group->token->Value());
        }
        page.copied = group->end;
        Count(page, *group);
    }
    if (!tokens_.EmptyTokens().empty())
        CountEmptyTokens(page.text, first, last);
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

void PlaceholderSubstitution::Count(Page& page, const Group& group) {
    const auto index = static_cast<std::size_t>(group.token->Number());
    std::uint64_t& countedAt = countedAt_[index];
    if (countedAt >= pageStart_ && group.start >= page.lineEnd) {
        page.lineStart = LineStart(page.text, group.start);
        page.lineEnd = LineEnd(page.text, group.start);
    }
    if (countedAt >= pageStart_ + page.lineStart)
        return;
    countedAt = pageStart_ + group.start;
    ++useCounts_[index];
}

/// Every line contains the empty token, so that all of them up to the last token looked at count as
/// replaced: all on a line where a placeholder is left.
void PlaceholderSubstitution::CountEmptyTokens(std::string_view text, Groups first, Groups last) {
    while (first != last) {
        const std::size_t end = LineEnd(text, first->start);
        TokenNumber lookedAt = 0;
        for (; first != last && first->start < end; ++first) {
            if (first->token != nullptr) {
                lookedAt = std::max(lookedAt, first->token->Number());
            } else if (IsPlaceholderAt(text, first->start)) {
                lookedAt = tokens_.UpperBound();
            }
        }
        CountEmptyTokensUpTo(lookedAt);
    }
}

void PlaceholderSubstitution::CountEmptyTokensUpTo(TokenNumber last) {
    for (const TokenNumber number : tokens_.EmptyTokens()) {
        if (number > last)
            break;
        ++useCounts_[static_cast<std::size_t>(number)];
    }
}

}  // namespace cvlang
