#include "generation/ScriptTracker.h"

#include <algorithm>

namespace cvlang {
namespace {

// Compared without regard to the case of ASCII letters.
constexpr std::string_view kOpening = "<SCRIPT ";
constexpr std::string_view kClosing = "</SCRIPT>";

char Lower(char c) { return static_cast<char>(c | 0x20); }

bool StartsWith(std::string_view text, std::string_view upperMarker) {
    return text.size() >= upperMarker.size() &&
           std::equal(upperMarker.begin(), upperMarker.end(), text.begin(), [](char marker, char c) {
               return marker == (c >= 'a' && c <= 'z' ? static_cast<char>(c - 0x20) : c);
           });
}

/// Whether "<s" or "</s" begins at one of the `size` characters from `text`, of which two more can be read. Written so
/// that the compiler looks at many characters at once.
bool MayHoldMarker(const char* text, std::size_t size) {
    unsigned char found = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const bool opening = Lower(text[i + 1]) == 's';
        const bool closing = (text[i + 1] == '/') & (Lower(text[i + 2]) == 's');
        found = static_cast<unsigned char>(found | ((text[i] == '<') & (opening | closing)));
    }
    return found != 0;
}

bool IsMarker(std::string_view text) {
    return text[0] == '<' && (StartsWith(text, kOpening) || StartsWith(text, kClosing));
}

/// The position of the first marker at or behind `from`; npos when there is none.
std::size_t FindMarker(std::string_view text, std::size_t from) {
    constexpr std::size_t kBlock = 256;
    while (from < text.size()) {
        const std::size_t readable = text.size() - from;
        const std::size_t size = std::min(kBlock, readable);
        if (readable < size + 2 || MayHoldMarker(text.data() + from, size)) {
            for (std::size_t i = from; i < from + size; ++i) {
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
    while (looked_ < lineEnd) {
        const std::size_t marker = FindMarker(page_.substr(0, lineEnd), looked_);
        if (marker == std::string_view::npos) {
            looked_ = lineEnd;
            break;
        }
        const std::size_t end = std::min(page_.find('\n', marker), page_.size());
        inside_ = !Holds(page_.substr(marker, end - marker), kClosing);
        looked_ = end;
    }
    return inside_;
}

}  // namespace cvlang
