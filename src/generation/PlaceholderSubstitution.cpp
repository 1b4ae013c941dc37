#include "generation/PlaceholderSubstitution.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "generation/PageEncoding.h"
#include "generation/PageLines.h"

namespace cvlang {
namespace {

// Tokens are numbered with 16 bits; installations rely on pages being left alone beyond that.
constexpr TokenNumber kMostTokens = std::numeric_limits<std::int16_t>::max();

bool IsPlaceholderAt(std::string_view text, std::size_t position) {
    return text.size() - position >= kPlaceholderPrefix.size() &&
           std::memcmp(text.data() + position, kPlaceholderPrefix.data(),
                       kPlaceholderPrefix.size()) == 0;
}

bool HoldsPlaceholder(std::string_view text) {
    return text.find(kPlaceholderPrefix) != std::string_view::npos;
}

std::size_t SkipBlankLines(std::string_view text, std::size_t position) {
    while (text.substr(position, kPageLineEnd.size()) == kPageLineEnd)
        position += kPageLineEnd.size();
    return position;
}

/// The start of the line that `position` lies on, no earlier than `from`.
std::size_t LineStart(std::string_view text, std::size_t from, std::size_t position) {
    const std::size_t end = text.substr(from, position - from).rfind('\n');
    return end == std::string_view::npos ? from : from + end + 1;
}

/// Where the next bracket of either kind stands behind an open one; the text's end when there is
/// none.
std::size_t FindBracketBehind(std::string_view text, std::size_t open) {
    std::size_t from = open + 1;
    if (IsPlaceholderAt(text, open))
        from = open + kPlaceholderPrefix.size();
    while (from < text.size() && text[from] != '[' && text[from] != ']')
        ++from;
    return from;
}

}  // namespace

PlaceholderSubstitution::PlaceholderSubstitution(const TokenIndex& tokens,
                                                 std::vector<std::int32_t>& useCounts)
    : tokens_(tokens),
      useCounts_(useCounts),
      countedOn_(static_cast<std::size_t>(tokens.UpperBound()) + 1),
      linesByEmptyTokens_(tokens.EmptyTokens().size() + 1) {}

bool PlaceholderSubstitution::Translate(std::string_view page, ScriptMode mode,
                                        std::string& output) {
    const std::string_view text = JoinLines(page, joinedLines_);
    const std::size_t outputStart = output.size();
    ScriptTracker script(text, mode);
    std::size_t position = 0;
    for (;;) {
        // A line that became empty at the start of the output is dropped like one that was empty
        // from the first.
        if (output.size() == outputStart)
            position = SkipBlankLines(text, position);
        const std::size_t start = FindPlaceholderLine(text, position);
        if (start == std::string_view::npos)
            break;
        if (tokens_.UpperBound() > kMostTokens)
            return false;
        const std::size_t end = std::min(text.find('\r', start), text.size());
        output += text.substr(position, start - position);
        TranslateLine({text.substr(start, end - start), end, script}, output);
        position = end;
    }
    output += text.substr(position);
    SumUpEmptyTokens();
    return true;
}

/// Where the next line with a placeholder begins; npos when there is none. As long as all tokens
/// are groups, what stands before the first bracket of a line does not matter and is left out.
std::size_t PlaceholderSubstitution::FindPlaceholderLine(std::string_view text,
                                                         std::size_t from) const {
    std::size_t firstBracket = std::string_view::npos;
    for (std::size_t open = text.find('[', from); open != std::string_view::npos;
         open = text.find('[', open + 1)) {
        if (firstBracket == std::string_view::npos ||
            text.substr(firstBracket, open - firstBracket).find('\n') != std::string_view::npos)
            firstBracket = open;
        if (!IsPlaceholderAt(text, open))
            continue;
        return tokens_.IrregularTokens().empty() ? firstBracket : LineStart(text, from, open);
    }
    return std::string_view::npos;
}

void PlaceholderSubstitution::TranslateLine(const Line& line, std::string& output) {
    replaced_.clear();
    if (!tokens_.IrregularTokens().empty() || !ReplaceAtOnce(line, output))
        output += ReplaceInOrder(line);
    CountReplaced();
}

/// Appends the line with all its placeholders replaced in one go. False, and nothing appended, when
/// the order matters.
bool PlaceholderSubstitution::ReplaceAtOnce(const Line& line, std::string& output) {
    const std::size_t outputStart = output.size();
    if (ReplaceGroups(line, line.text, 0, nullptr, output) != nullptr) {
        output.resize(outputStart);
        replaced_.clear();
        return false;
    }
    if (!tokens_.EmptyTokens().empty()) {
        const bool unfinished = HoldsPlaceholder(std::string_view(output).substr(outputStart));
        CountEmptyTokensUpTo(unfinished ? tokens_.UpperBound() : LastReplaced());
    }
    return true;
}

/// The line as it comes out of going through the tokens in order. Between two tokens whose place in
/// the order matters, the others are replaced in one go.
std::string PlaceholderSubstitution::ReplaceInOrder(const Line& line) {
    std::string text(line.text);
    TokenNumber done = 0;
    while (HoldsPlaceholder(text)) {
        const IndexedToken* next = ReplaceUpToNext(line, done, text);
        done = LastReplaced();
        if (!HoldsPlaceholder(text))
            break;
        done = next == nullptr ? tokens_.UpperBound() : next->Number();
        if (next == nullptr)
            break;
        text = ReplaceToken(line, text, *next);
    }
    CountEmptyTokensUpTo(done);
    return text;
}

/// Replaces the tokens behind `done` up to the next one whose place in the order matters, and
/// returns that one; null when there is none.
const IndexedToken* PlaceholderSubstitution::ReplaceUpToNext(const Line& line, TokenNumber done,
                                                             std::string& text) {
    const auto replacedBefore = static_cast<std::ptrdiff_t>(replaced_.size());
    const IndexedToken* next = NextIrregular(done);
    for (;;) {
        std::string changed;
        const IndexedToken* found = ReplaceGroups(line, text, done, next, changed);
        if (found == next) {
            text.swap(changed);
            return next;
        }
        // An earlier one turned up on the way: only what comes before it counts.
        replaced_.erase(replaced_.begin() + replacedBefore, replaced_.end());
        next = found;
    }
}

/// Appends the text with each group replaced that is a token behind `after` and before `before`
/// (null: up to the last) and whose place in the order does not matter. Returns the first token
/// between them whose place does matter, or else `before`.
const IndexedToken* PlaceholderSubstitution::ReplaceGroups(const Line& line, std::string_view text,
                                                           TokenNumber after,
                                                           const IndexedToken* before,
                                                           std::string& output) {
    std::size_t copied = 0;
    bool behindOpenBracket = false;
    std::size_t open = text.starts_with('[') ? 0 : text.find('[');
    while (open != std::string_view::npos) {
        const std::size_t close = FindBracketBehind(text, open);
        if (close == text.size())
            break;
        if (text[close] == '[') {
            behindOpenBracket = true;
            open = close;
            continue;
        }
        const IndexedToken* token = tokens_.FindGroup(text.substr(open, close + 1 - open), after);
        if (token != nullptr && (before == nullptr || token->Number() < before->Number())) {
            // Behind an open bracket the value may become part of another placeholder.
            if (behindOpenBracket || token->DependsOnOrder()) {
                before = token;
            } else {
                output += text.substr(copied, open - copied);
                AppendValue(line, *token, output);
                replaced_.push_back(token->Number());
                copied = close + 1;
            }
        }
        behindOpenBracket = false;
        open = text.find('[', close + 1);
    }
    output += text.substr(copied);
    return before;
}

/// Replaces every occurrence of an irregular or order-dependent token.
std::string PlaceholderSubstitution::ReplaceToken(const Line& line, std::string_view text,
                                                  const IndexedToken& token) {
    std::string output;
    std::size_t copied = 0;
    std::size_t found = text.find(token.Token());
    if (found != std::string_view::npos)
        replaced_.push_back(token.Number());
    while (found != std::string_view::npos) {
        output += text.substr(copied, found - copied);
        AppendValue(line, token, output);
        copied = found + token.Token().size();
        found = text.find(token.Token(), copied);
    }
    output += text.substr(copied);
    return output;
}

void PlaceholderSubstitution::AppendValue(const Line& line, const IndexedToken& token,
                                          std::string& output) {
    if (token.HasQuotes() && line.script.IsScript(line.end)) {
        AppendEscapedForScript(token.Value(), output);
    } else {
        output += token.Value();
    }
}

const IndexedToken* PlaceholderSubstitution::NextIrregular(TokenNumber after) const {
    const auto& irregular = tokens_.IrregularTokens();
    const auto next = std::upper_bound(
        irregular.begin(), irregular.end(), after,
        [](TokenNumber number, const IndexedToken* token) { return number < token->Number(); });
    return next == irregular.end() ? nullptr : *next;
}

TokenNumber PlaceholderSubstitution::LastReplaced() const {
    const auto last = std::max_element(replaced_.begin(), replaced_.end());
    return last == replaced_.end() ? 0 : *last;
}

void PlaceholderSubstitution::CountReplaced() {
    ++lineNumber_;
    for (const TokenNumber number : replaced_) {
        const auto index = static_cast<std::size_t>(number);
        if (std::exchange(countedOn_[index], lineNumber_) != lineNumber_)
            ++useCounts_[index];
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
        useCounts_[static_cast<std::size_t>(tokens_.EmptyTokens()[i - 1])] += lines;
    }
}

}  // namespace cvlang
