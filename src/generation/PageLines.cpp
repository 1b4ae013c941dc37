#include "generation/PageLines.h"

#include "translation/Lines.h"

namespace cvlang {

std::string WithPairs(std::string_view page) {
    std::string pairs;
    pairs.reserve(page.size());
    Lines<char> lines(page);
    for (std::string_view line; lines.Next(line);) {
        pairs += line;
        pairs += kPageLineEnd;
    }
    return pairs;
}

}  // namespace cvlang
