#include "generation/PageScan.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "text/Strings.h"

namespace cvlang {
namespace {

constexpr std::string_view kOpeningTag = "<script ";
constexpr std::string_view kClosingTag = "</script>";

// These tests work on one character and on sixteen at once.
template <typename Characters>
auto IsBracket(Characters c) {
    return c.Is('[') | c.Is(']');
}

/// Whether "<", or "/" as the closing tag's second character, is followed by "sc".
template <typename Characters>
auto MayBeScriptTag(Characters c, Characters next, Characters afterNext) {
    return (c.Is('<') | c.Is('/')) & next.IsLetter('s') & afterNext.IsLetter('c');
}

class OneCharacter {
  public:
    explicit OneCharacter(const char* at) : c_(*at) {}
    unsigned Is(char c) const { return c_ == c; }
    unsigned IsLetter(char lower) const { return LowerAscii(c_) == lower; }

  private:
    char c_;
};

#ifdef __SSE2__

// The characters that are scanned together: as many as a number has bits.
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

/// What is found in a block, with a bit for each character.
struct Found {
    std::uint64_t brackets = 0;
    std::uint64_t scriptTags = 0;
    bool hasOnlyCrLf =
        true;  // every CR is before an LF, and every LF behind the block's start after a CR
};

std::uint64_t Bits(__m128i answers) {
    return static_cast<std::uint64_t>(_mm_movemask_epi8(answers));
}

/// Scans a whole block, after which two more characters are readable.
Found ScanBlock(const char* text) {
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
    found.hasOnlyCrLf = Bits(brokenCrLfs) == 0;
    if (Bits(scriptTags[0] | scriptTags[1] | scriptTags[2] | scriptTags[3]) != 0) {
        for (std::size_t i = 0; i < 4; ++i)
            found.scriptTags |= Bits(scriptTags[i]) << 16 * i;
    }
    return found;
}

#endif

}  // namespace

void PageScan::Scan(std::string_view page) {
    bool hasOnlyCrLf = !page.starts_with('\n');
    brackets_.clear();
    scriptTags_.clear();
    const auto noteScriptTag = [&](std::size_t place) {
        const std::size_t start = page[place] == '/' && place > 0 ? place - 1 : place;
        const auto isTag = [&](std::string_view tag) {
            return EndsWithIgnoringCase(page.substr(start, tag.size()), tag);
        };
        if (isTag(kOpeningTag) || isTag(kClosingTag))
            scriptTags_.push_back(start);
    };
    std::size_t start = 0;
#ifdef __SSE2__
    for (; page.size() - start >= kBlock + 2; start += kBlock) {
        const Found found = ScanBlock(page.data() + start);
        if (found.brackets != 0)
            brackets_.push_back({start, found.brackets});
        for (std::uint64_t bits = found.scriptTags; bits != 0; bits &= bits - 1)
            noteScriptTag(start + static_cast<std::size_t>(std::countr_zero(bits)));
        hasOnlyCrLf = hasOnlyCrLf && found.hasOnlyCrLf;
    }
#endif
    for (std::size_t i = start; i < page.size(); ++i) {
        const auto at = [&](std::size_t further) {
            return OneCharacter(page.data() + i + further);
        };
        if (IsBracket(at(0)))
            brackets_.push_back({i, 1});
        if (at(0).Is('\r') != page.substr(i + 1).starts_with('\n'))
            hasOnlyCrLf = false;
        if (i + 2 < page.size() && MayBeScriptTag(at(0), at(1), at(2)))
            noteScriptTag(i);
    }
    hasOnlyCrLf_ = hasOnlyCrLf;
}

void NormaliseLineEnds(std::string_view page, PageText& normalised) {
    normalised.Truncate(0);
    while (!page.empty()) {
        const std::size_t end = page.find('\n');
        const bool endsByLf = end != std::string_view::npos;
        std::string_view line = page.substr(0, end);
        page.remove_prefix(endsByLf ? end + 1 : page.size());
        if (endsByLf && line.ends_with('\r'))
            line.remove_suffix(1);
        for (std::size_t cr = 0; (cr = line.find('\r')) != std::string_view::npos;) {
            normalised.Append(line.substr(0, cr));
            normalised.Append(kCrLf);
            line.remove_prefix(cr + 1);
        }
        normalised.Append(line);
        if (endsByLf)
            normalised.Append(kCrLf);
    }
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
        if ((all && isClosed) || text.substr(open).starts_with(kPlaceholderPrefix))
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
