#include "generation/PageLines.h"

#include "translation/Lines.h"

namespace cvlang {

void EndLinesByPairs(std::string_view page, PageText& pairs) {
    pairs.Truncate(0);
    Lines<char> lines(page);
    for (std::string_view line; lines.Next(line);) {
        pairs.Append(line);
        pairs.Append(kPageLineEnd);
    }
}

}  // namespace cvlang
