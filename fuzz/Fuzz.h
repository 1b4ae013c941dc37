// What all fuzz targets share. A target defines Try, which gets one input after the other and tells
// by Must what does not hold.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "support/FakeProgram.h"
#include "text/Strings.h"

namespace cvlang {

void Try(std::string_view input);

/// Ends the process, which keeps the input, unless the property holds.
void Must(bool holds, const char* property);

/// The program's surroundings, the same for all inputs.
FakeProgram& Surroundings();

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
