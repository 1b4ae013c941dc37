#include "generation/PageLines.h"

#include "translation/Lines.h"

namespace cvlang {
namespace {

/// Whether CR and LF stand nowhere but side by side. Written so that the compiler looks at many
/// characters at once.
bool HasOnlyPairs(std::string_view page) {
    if (page.empty())
        return true;
    unsigned char single = page.front() == '\n' || page.back() == '\r';
    const char* text = page.data();
    for (std::size_t i = 0; i + 1 < page.size(); ++i)
        single = static_cast<unsigned char>(single | ((text[i] == '\r') ^ (text[i + 1] == '\n')));
    return single == 0;
}

}  // namespace

std::string_view JoinLines(std::string_view page, std::string& scratch) {
    if (HasOnlyPairs(page)) {
        if (page.ends_with(kPageLineEnd))
            page.remove_suffix(kPageLineEnd.size());
        return page;
    }
    scratch.clear();
    scratch.reserve(page.size());
    Lines<char> lines(page);
    for (std::string_view line; lines.Next(line);) {
        scratch += line;
        scratch += kPageLineEnd;
    }
    return std::string_view(scratch).substr(0, scratch.size() - kPageLineEnd.size());
}

}  // namespace cvlang
