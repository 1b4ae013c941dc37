// A plain-text rendering of HTML, for readers of mail that show none.
#pragma once

#include <string>
#include <string_view>

namespace cvlang {

enum class LineBreaks { Kept, AsMarkup };

/// Simple on purpose: only the first title, style and script block is taken out, and entities other
/// than "&nbsp;" stay.
std::string HTMLToText(std::string_view html, LineBreaks lineBreaks);

}  // namespace cvlang
