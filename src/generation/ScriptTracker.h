// Tells which lines of a page are script.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace cvlang {

enum class ScriptMode {
    Ignored,  // no line is script
    Tracked,  // script elements are
    Always    // every line is: a script file
};

class ScriptTracker {
  public:
    /// The page must outlive the tracker.
    ScriptTracker(std::string_view page, ScriptMode mode) : page_(page), mode_(mode) {}

    /// Whether the line that ends at `lineEnd` is script: a line with "</SCRIPT>" is not, otherwise
    /// one with "<SCRIPT " is, otherwise it is what the line before it was. Asked of lines in
    /// rising order.
    bool IsScript(std::size_t lineEnd);

  private:
    std::string_view page_;
    ScriptMode mode_;
    std::optional<std::size_t> nextMarker_;  // the page's first one behind the lines asked for
    bool inside_ = false;
};

}  // namespace cvlang
