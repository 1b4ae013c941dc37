#include "generation/Placeholders.h"

namespace cvlang {

bool IsPlaceholderAt(std::string_view text, std::size_t position) {
    return text.substr(position, kPlaceholderPrefix.size()) == kPlaceholderPrefix;
}

bool HoldsPlaceholder(std::string_view text) {
    return text.find(kPlaceholderPrefix) != std::string_view::npos;
}

}  // namespace cvlang
