#include "generation/Placeholders.h"

namespace cvlang {

bool IsPlaceholderAt(std::string_view text, std::size_t position) {
    return text.substr(position, kPlaceholderPrefix.size()) == kPlaceholderPrefix;
}

bool HoldsPlaceholder(std::string_view text) {
    return text.find(kPlaceholderPrefix) != std::string_view::npos;
}

void FindGroups(std::string_view text, const PageOutline& outline, bool all,
                std::vector<Group>& groups) {
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
    outline.ForEachBracket([&](std::size_t place) {
        const bool closes = text[place] == ']';
        if (open != kNone)
            note(closes ? place + 1 : open);
        open = closes ? kNone : place;
    });
    if (open != kNone)
        note(open);
}

}  // namespace cvlang
