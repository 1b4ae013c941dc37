// Text files line by line.
#pragma once

#include <algorithm>
#include <string_view>

namespace cvlang {

/// Iterates over the lines of a text. CR LF, a single LF and a single CR end a line. A last line
/// without a line end counts. A line end at the end of the text does not start another line.
template <typename Character>
class Lines {
  public:
    using View = std::basic_string_view<Character>;

    explicit Lines(View text) : rest_(text) {}

    /// Sets `line` to the next line, without its end. False at the end of the text.
    bool Next(View& line) {
        if (rest_.empty())
            return false;
        // Fast path: one comparison for nearly all characters.
        const auto isEnd = [](Character c) { return c <= '\r' && (c == '\r' || c == '\n'); };
        const auto end = static_cast<std::size_t>(std::find_if(rest_.begin(), rest_.end(), isEnd) -
                                                  rest_.begin());
        line = rest_.substr(0, end);
        const bool pair = rest_.size() > end + 1 && rest_[end] == '\r' && rest_[end + 1] == '\n';
        rest_.remove_prefix(std::min(rest_.size(), end + (pair ? 2 : 1)));
        return true;
    }

  private:
    View rest_;
};

}  // namespace cvlang
