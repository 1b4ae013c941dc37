// What matters to generation in a page: its brackets, script tags and line ends, and what follows
// from them. One scan of the page finds them all.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "generation/PageText.h"
#include "text/Strings.h"

namespace cvlang {

class PageScan {
  public:
    /// Scans a page. The results of the page before are replaced.
    void Scan(std::string_view page);

    /// Whether every CR is before an LF, and every LF after a CR.
    bool HasOnlyCrLf() const { return hasOnlyCrLf_; }

    /// Calls the function with the position of each "[" and "]", in order.
    template <typename Function>
    void ForEachBracket(Function function) const {
        for (const Block& block : brackets_) {
            for (std::uint64_t bits = block.bits; bits != 0; bits &= bits - 1)
                function(block.start + static_cast<std::size_t>(std::countr_zero(bits)));
        }
    }

    /// The positions of "<SCRIPT " and "</SCRIPT>", in any letter case.
    const std::vector<std::size_t>& ScriptTags() const { return scriptTags_; }

  private:
    /// A bit for each bracket from `start` on.
    struct Block {
        std::size_t start;
        std::uint64_t bits;
    };

    bool hasOnlyCrLf_ = true;
    std::vector<Block> brackets_;  // only blocks with a bracket
    std::vector<std::size_t> scriptTags_;
};

/// Makes `normalised` the page with CR LF instead of each CR, LF and CR LF.
void NormaliseLineEnds(std::string_view page, PageText& normalised);

/// Where the line of this position begins, on a page whose lines end by CR LF.
inline std::size_t LineStart(std::string_view page, std::size_t position) {
    // Without a line's end before it, npos + 1 is the page's start.
    return page.rfind('\n', position) + 1;
}

/// Where the line of this position ends.
inline std::size_t LineEnd(std::string_view page, std::size_t position) {
    return std::min(page.find('\r', position), page.size());
}

enum class ScriptMode {
    Ignored,  // no line is script
    Tracked,  // script elements are
    Always    // every line is: a script file
};

class ScriptTracker {
  public:
    /// The page and its scan must outlive the tracker.
    ScriptTracker(std::string_view page, const PageScan& scan, ScriptMode mode);

    /// Whether the line that holds this position is script: a line with "</SCRIPT>" is not,
    /// otherwise one with "<SCRIPT " is, otherwise it is what the line before it was. Asked of
    /// lines in rising order.
    bool IsScript(std::size_t position) {
        while (position >= nextChange_)
            TakeNextLine();
        return inside_;
    }

  private:
    void TakeNextLine();
    std::size_t NextLine() const;

    std::string_view page_;
    std::span<const std::size_t> tags_;  // behind the lines asked for
    std::size_t nextChange_;             // where the line of the next one begins
    bool inside_;
};

struct IndexedToken;

/// The beginning of every placeholder. Lines without it are copied unchanged.
inline constexpr std::string_view kPlaceholderPrefix = "[CV_TXT-";

bool HoldsPlaceholder(std::string_view text);

/// A text from "[" to "]" without further brackets. It is empty where a placeholder begins that is
/// not closed before the next bracket.
struct BracketGroup {
    std::size_t start;
    std::size_t end;
    bool isBehindOpenBracket;  // and no other bracket is in between
    std::size_t hash = 0;      // for TokenIndex
    const IndexedToken* token = nullptr;

    std::string_view In(std::string_view text) const { return text.substr(start, end - start); }
};

/// Replaces `groups` by those of the text, either all or those that begin as placeholders do.
void FindBracketGroups(std::string_view text, const PageScan& scan, bool all,
                       std::vector<BracketGroup>& groups);

}  // namespace cvlang
