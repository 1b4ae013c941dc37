#include "generation/PageScan.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace cvlang {
namespace {

// Compared without regard to the case of ASCII letters.
constexpr std::string_view kOpeningTag = "<SCRIPT ";
constexpr std::string_view kClosingTag = "</SCRIPT>";

bool StartsWith(std::string_view text, std::string_view upperTag) {
    return text.size() >= upperTag.size() &&
           std::equal(upperTag.begin(), upperTag.end(), text.begin(), [](char tag, char c) {
               return tag == (c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c);
           });
}

// The same questions are asked of one character at a time and of sixteen.
template <typename Characters>
auto IsBracket(Characters c) {
    return c.Is('[') | c.Is(']');
}

/// Whether "<" or "/", the closing tag's second character, stands before "sc".
template <typename Characters>
auto MayBeScriptTag(Characters c, Characters next, Characters afterNext) {
    return (c.Is('<') | c.Is('/')) & next.IsLetter('s') & afterNext.IsLetter('c');
}

class OneCharacter {
  public:
    explicit OneCharacter(const char* at) : c_(*at) {}
    unsigned Is(char c) const { return c_ == c; }
    unsigned IsLetter(char lower) const { return (c_ | 0x20) == lower; }

  private:
    char c_;
};

#ifdef __SSE2__

// Looked at together: as many places as a number has bits.
constexpr std::size_t kBlock = 64;

class SixteenCharacters {
  public:
    explicit SixteenCharacters(const char* at)
        : c_(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at))) {}
    __m128i Is(char c) const { return _mm_cmpeq_epi8(c_, _mm_set1_epi8(c)); }
    __m128i IsLetter(char lower) const {
        return _mm_cmpeq_epi8(_mm_or_si128(c_, _mm_set1_epi8(0x20)), _mm_set1_epi8(lower));
    }

  private:
    __m128i c_;
};

/// What is found at the places of a block, a bit for each.
struct Found {
    std::uint64_t brackets = 0;
    std::uint64_t scriptTags = 0;
    bool breaksCrLf = false;  // a CR stands before, or an LF behind, something else
};

std::uint64_t Bits(__m128i answers) {
    return static_cast<std::uint64_t>(_mm_movemask_epi8(answers));
}

/// A whole block, behind which two more characters can be read.
Found LookAtBlock(const char* text) {
    Found found;
    __m128i brokenCrLfs = _mm_setzero_si128();
    __m128i scriptTags[4];
    for (std::size_t i = 0; i < 4; ++i) {
        const SixteenCharacters c(text + 16 * i);
        const SixteenCharacters next(text + 16 * i + 1);
        const SixteenCharacters afterNext(text + 16 * i + 2);
        found.brackets |= Bits(IsBracket(c)) << 16 * i;
        scriptTags[i] = MayBeScriptTag(c, next, afterNext);
        brokenCrLfs |= c.Is('\r') ^ next.Is('\n');
    }
    found.breaksCrLf = Bits(brokenCrLfs) != 0;
    if (Bits(scriptTags[0] | scriptTags[1] | scriptTags[2] | scriptTags[3]) != 0) {
        for (std::size_t i = 0; i < 4; ++i)
            found.scriptTags |= Bits(scriptTags[i]) << 16 * i;
    }
    return found;
}

/// CR and LF without the other in the block that starts there, a bit for each.
std::uint64_t IrregularLineEnds(std::string_view page, std::size_t start) {
    std::uint64_t cr = 0;
    std::uint64_t lf = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        const SixteenCharacters c(page.data() + start + 16 * i);
        cr |= Bits(c.Is('\r')) << 16 * i;
        lf |= Bits(c.Is('\n')) << 16 * i;
    }
    constexpr std::uint64_t kFirst = 1;
    constexpr std::uint64_t kLast = kFirst << (kBlock - 1);
    const std::uint64_t behindCr = cr << 1 | (start > 0 && page[start - 1] == '\r' ? kFirst : 0);
    const std::uint64_t beforeLf = lf >> 1 | (page[start + kBlock] == '\n' ? kLast : 0);
    return (cr & ~beforeLf) | (lf & ~behindCr);
}

#endif

}  // namespace

void PageScan::Scan(std::string_view page) {
    irregularLineEnds_.clear();
    brackets_.clear();
    scriptTags_.clear();
    const auto noteScriptTag = [&](std::size_t place) {
        const std::size_t start = page[place] == '/' && place > 0 ? place - 1 : place;
        const std::string_view tag = page.substr(start);
        if (StartsWith(tag, kOpeningTag) || StartsWith(tag, kClosingTag))
            scriptTags_.push_back(start);
    };
    std::size_t start = 0;
#ifdef __SSE2__
    bool hasIrregularLineEnds = page.starts_with('\n');
    for (; page.size() - start >= kBlock + 2; start += kBlock) {
        const Found found = LookAtBlock(page.data() + start);
        if (found.brackets != 0)
            brackets_.push_back({start, found.brackets});
        for (std::uint64_t bits = found.scriptTags; bits != 0; bits &= bits - 1)
            noteScriptTag(start + static_cast<std::size_t>(std::countr_zero(bits)));
        // From the first one on, as an LF at a block's start breaks a pair in the block before.
        hasIrregularLineEnds = hasIrregularLineEnds || found.breaksCrLf;
        if (hasIrregularLineEnds)
            irregularLineEnds_.push_back({start, IrregularLineEnds(page, start)});
    }
#endif
    for (std::size_t i = start; i < page.size(); ++i) {
        const auto at = [&](std::size_t further) {
            return OneCharacter(page.data() + i + further);
        };
        if (IsBracket(at(0)))
            brackets_.push_back({i, 1});
        const bool isCrLf =
            page[i] == '\r' ? page.substr(i + 1).starts_with('\n') : i > 0 && page[i - 1] == '\r';
        if ((at(0).Is('\r') | at(0).Is('\n')) && !isCrLf)
            irregularLineEnds_.push_back({i, 1});
        if (i + 2 < page.size() && MayBeScriptTag(at(0), at(1), at(2)))
            noteScriptTag(i);
    }
}

void NormaliseLineEnds(std::string_view page, const PageScan& scan, PageText& normalised) {
    normalised.Truncate(0);
    std::size_t copied = 0;
    scan.ForEachIrregularLineEnd([&](std::size_t place) {
        normalised.Append(page.substr(copied, place - copied));
        normalised.Append(kCrLf);
        copied = place + 1;
    });
    normalised.Append(page.substr(copied));
}

ScriptTracker::ScriptTracker(std::string_view page, const PageScan& scan, ScriptMode mode)
    : page_(page), inside_(mode == ScriptMode::Always) {
    if (mode == ScriptMode::Tracked)
        tags_ = scan.ScriptTags();
    nextChange_ = NextLine();
}

/// Where the next line with a tag begins; npos when there is none.
std::size_t ScriptTracker::NextLine() const {
    return tags_.empty() ? std::string_view::npos : LineStart(page_, tags_.front());
}

void ScriptTracker::TakeNextLine() {
    const std::size_t end = LineEnd(page_, tags_.front());
    inside_ = true;
    for (; !tags_.empty() && tags_.front() < end; tags_ = tags_.subspan(1)) {
        const bool closes = page_[tags_.front() + 1] == '/';
        inside_ = inside_ && !closes;
    }
    nextChange_ = NextLine();
}

bool IsPlaceholderAt(std::string_view text, std::size_t position) {
    return text.substr(position, kPlaceholderPrefix.size()) == kPlaceholderPrefix;
}

bool HoldsPlaceholder(std::string_view text) {
    return text.find(kPlaceholderPrefix) != std::string_view::npos;
}

void FindBracketGroups(std::string_view text, const PageScan& scan, bool all,
                       std::vector<BracketGroup>& groups) {
    constexpr std::size_t kNone = std::string_view::npos;
    groups.clear();
    bool isBehindOpenBracket = false;
    std::size_t open = kNone;
    const auto note = [&](std::size_t end) {
        const bool isClosed = end != open;
        if ((all && isClosed) || IsPlaceholderAt(text, open))
            groups.push_back({open, end, isBehindOpenBracket});
        isBehindOpenBracket = !isClosed;
    };
    scan.ForEachBracket([&](std::size_t place) {
        const bool closes = text[place] == ']';
        if (open != kNone)
            note(closes ? place + 1 : open);
        open = closes ? kNone : place;
    });
    if (open != kNone)
        note(open);
}

}  // namespace cvlang
