// Text on its way between the program (UTF-16, unit by unit) and the toolkit (wide characters of
// the system's width).
#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace cvlang {

/// The toolkit's form of a text; a lone surrogate half stays one.
wxString ToWx(std::u16string_view text);

/// The program's form of a toolkit's text; undoes ToWx for every text.
std::u16string FromWx(const wxString& text);

/// What is shown of a text in a row: systems cannot draw very long ones.
std::u16string_view Shortened(std::u16string_view text);

}  // namespace cvlang
