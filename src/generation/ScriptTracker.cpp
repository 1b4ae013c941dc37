#include "generation/ScriptTracker.h"

#include "generation/PageLines.h"

namespace cvlang {

ScriptTracker::ScriptTracker(std::string_view page, const PageOutline& outline, ScriptMode mode)
    : page_(page), inside_(mode == ScriptMode::Always) {
    if (mode == ScriptMode::Tracked)
        tags_ = outline.ScriptTags();
    nextChange_ = NextLine();
}

/// Where the next line with a tag begins; npos when there is none.
std::size_t ScriptTracker::NextLine() const {
    return tags_.empty() ? std::string_view::npos : LineStart(page_, tags_.front());
}

void ScriptTracker::TakeNextLine() {
    const std::size_t end = LineEnd(page_, tags_.front());
    inside_ = true;
    for (; !tags_.empty() && tags_.front() < end; tags_ = tags_.subspan(1)) {
        const bool closes = page_[tags_.front() + 1] == '/';
        inside_ = inside_ && !closes;
    }
    nextChange_ = NextLine();
}

}  // namespace cvlang
