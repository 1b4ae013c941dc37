// Tells which lines of a page are script.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "generation/PageOutline.h"

namespace cvlang {

enum class ScriptMode {
    Ignored,  // no line is script
    Tracked,  // script elements are
    Always    // every line is: a script file
};

class ScriptTracker {
  public:
    /// The page and its outline must outlive the tracker.
    ScriptTracker(std::string_view page, const PageOutline& outline, ScriptMode mode);

    /// Whether the line that holds this position is script: a line with "</SCRIPT>" is not,
    /// otherwise one with "<SCRIPT " is, otherwise it is what the line before it was. Asked of
    /// lines in rising order.
    bool IsScript(std::size_t position) {
        while (position >= nextChange_)
            TakeNextLine();
        return inside_;
    }

  private:
    void TakeNextLine();
    std::size_t NextLine() const;

    std::string_view page_;
    std::span<const std::size_t> tags_;  // behind the lines asked for
    std::size_t nextChange_;             // where the line of the next one begins
    bool inside_;
};

}  // namespace cvlang
