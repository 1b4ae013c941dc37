// What all fuzz targets share. A target defines Try, which gets one input after the other and
// reports by Must what does not hold.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "support/FakeProgram.h"
#include "text/Strings.h"

namespace cvlang {

void Try(std::string_view input);

/// Throws unless the property holds. The input is then kept or shown.
void Must(bool holds, const std::string& property);

/// The program's surroundings, the same for all inputs.
FakeProgram& Surroundings();

/// An input whose bytes are choices, one after the other; behind its end, each is the first one.
class Choices {
  public:
    explicit Choices(std::string_view input) : rest_(input) {}

    bool Empty() const { return rest_.empty(); }
    /// From 0 to one less than the count.
    std::size_t Number(std::size_t count);
    template <typename Choice>
    Choice Of(std::initializer_list<Choice> offered) {
        return offered.begin()[Number(offered.size())];
    }

  private:
    std::string_view rest_;
};

/// Takes the input's first line off.
std::string_view TakeLine(std::string_view& input);

/// The input as a file of the translation store: its text in UTF-8 or, where it begins with FF, the
/// very bytes.
std::string StoreFile(std::string_view input);

template <typename Character>
std::vector<std::basic_string<Character>> LinesOf(std::basic_string_view<Character> text) {
    std::vector<std::basic_string<Character>> all;
    Lines<Character> lines(text);
    for (std::basic_string_view<Character> line; lines.Next(line);)
        all.emplace_back(line);
    return all;
}

}  // namespace cvlang
