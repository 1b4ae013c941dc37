#include "generation/PageLines.h"

namespace cvlang {

void EndLinesByPairs(std::string_view page, const PageOutline& outline, PageText& pairs) {
    pairs.Truncate(0);
    std::size_t copied = 0;
    outline.ForEachSingleLineEnd([&](std::size_t place) {
        pairs.Append(page.substr(copied, place - copied));
        pairs.Append(kPageLineEnd);
        copied = place + 1;
    });
    pairs.Append(page.substr(copied));
}

}  // namespace cvlang
