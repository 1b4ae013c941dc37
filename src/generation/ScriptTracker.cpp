#include "generation/ScriptTracker.h"

#include <algorithm>

namespace cvlang {
namespace {

// Compared without regard to the case of ASCII letters.
constexpr std::string_view kOpening = "<SCRIPT ";
constexpr std::string_view kClosing = "</SCRIPT>";

bool StartsWith(std::string_view text, std::string_view upperMarker) {
    return text.size() >= upperMarker.size() &&
           std::equal(upperMarker.begin(), upperMarker.end(), text.begin(),
                      [](char marker, char c) {
                          return marker == (c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c);
                      });
}

constexpr std::size_t kLookAhead = 3;

/// Whether "<scr" or "/scr" stands at one of the `size` characters from `text`, behind which
/// kLookAhead more can be read; seldom true otherwise. Written so that the compiler looks at many
/// characters at once.
bool MayHoldMarker(const char* text, std::size_t size) {
    constexpr unsigned kIgnoreCase = 0xDF;
    const auto* c = reinterpret_cast<const unsigned char*>(text);
    unsigned char closest = 0xFF;  // 0 when everything agrees somewhere
    for (std::size_t i = 0; i < size; ++i) {
        // Left of the bar no letter gives 0; the few characters that do cost a closer look.
        const unsigned difference =
            ((c[i] ^ '<') & (c[i] ^ '/')) |
            (((c[i + 1] ^ 's') | (c[i + 2] ^ 'c') | (c[i + 3] ^ 'r')) & kIgnoreCase);
        closest = std::min(closest, static_cast<unsigned char>(difference));
    }
    return closest == 0;
}

bool IsMarker(std::string_view text) {
    return StartsWith(text, kOpening) || StartsWith(text, kClosing);
}

/// The position of the first marker at or behind `from`; npos when there is none.
std::size_t FindMarker(std::string_view text, std::size_t from) {
    constexpr std::size_t kBlock = 256;
    while (from < text.size()) {
        const std::size_t size = std::min(kBlock, text.size() - from);
        // A marker that begins in this block has its slash in it or just behind.
        const std::size_t looked = size + 1;
        if (text.size() - from < looked + kLookAhead || MayHoldMarker(text.data() + from, looked)) {
            for (std::size_t i = text.find('<', from); i < from + size; i = text.find('<', i + 1)) {
                if (IsMarker(text.substr(i)))
                    return i;
            }
        }
        from += size;
    }
    return std::string_view::npos;
}

bool Holds(std::string_view line, std::string_view marker) {
    for (std::size_t i = line.find('<'); i != std::string_view::npos; i = line.find('<', i + 1)) {
        if (StartsWith(line.substr(i), marker))
            return true;
    }
    return false;
}

}  // namespace

bool ScriptTracker::IsScript(std::size_t lineEnd) {
    if (mode_ != ScriptMode::Tracked)
        return mode_ == ScriptMode::Always;
    if (!nextMarker_)
        nextMarker_ = FindMarker(page_, 0);
    while (*nextMarker_ < lineEnd) {
        const std::size_t end = std::min(page_.find('\n', *nextMarker_), page_.size());
        inside_ = !Holds(page_.substr(*nextMarker_, end - *nextMarker_), kClosing);
        nextMarker_ = FindMarker(page_, end);
    }
    return inside_;
}

}  // namespace cvlang
