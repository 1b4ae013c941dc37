// What substitution means, written down plainly: line by line, token by token. The product's is
// compared with it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace cvlang {

struct PlainPage {
    std::string text;
    std::vector<std::int32_t> useCounts;
};

PlainPage SubstitutePlainly(std::string page, const std::vector<std::u16string>& tokens,
                            const std::vector<std::u16string>& values, bool scriptFile,
                            bool scriptAware);

}  // namespace cvlang
