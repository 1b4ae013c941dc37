#include "mail/IgnoringCase.h"

#include <algorithm>
#include <vector>

namespace cvlang {
namespace {

char ToLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Finds a text in a stream of characters without ever looking at one of them twice (Knuth, Morris
/// and Pratt).
class StreamSearch {
  public:
    explicit StreamSearch(std::string_view wanted) : wanted_(ToLowerCase(wanted)) {
        fallback_.assign(wanted_.size() + 1, 0);
        for (std::size_t i = 1; i < wanted_.size(); ++i)
            fallback_[i + 1] = Longer(fallback_[i], wanted_[i]);
    }

    /// Whether an occurrence ends with this character. Occurrences do not overlap.
    bool EndsWith(char c) {
        matched_ = Longer(matched_, ToLower(c));
        if (matched_ < wanted_.size())
            return false;
        matched_ = 0;
        return true;
    }

  private:
    /// How much of the text is matched when a character follows what was matched.
    std::size_t Longer(std::size_t matched, char c) const {
        while (matched > 0 && wanted_[matched] != c)
            matched = fallback_[matched];
        return wanted_[matched] == c ? matched + 1 : matched;
    }

    std::string wanted_;
    std::vector<std::size_t>
        fallback_;  // by what is matched, its longest tail that the text begins with
    std::size_t matched_ = 0;
};

}  // namespace

std::string ToLowerCase(std::string_view text) {
    std::string lower(text.size(), '\0');
    std::transform(text.begin(), text.end(), lower.begin(), ToLower);
    return lower;
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view wanted, std::size_t from) {
    const auto found =
        std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), wanted.begin(),
                    wanted.end(), [](char a, char b) { return ToLower(a) == b; });
    return found == text.end() ? std::string_view::npos
                               : static_cast<std::size_t>(found - text.begin());
}

std::string ReplaceIgnoringCase(std::string_view text, std::string_view wanted,
                                std::string_view replacement) {
    std::string result;
    result.reserve(text.size());
    StreamSearch search(wanted);
    for (const char c : text) {
        result += c;
        if (search.EndsWith(c))
            result.replace(result.size() - wanted.size(), wanted.size(), replacement);
    }
    return result;
}

}  // namespace cvlang
