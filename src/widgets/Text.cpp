#include "widgets/Text.h"

#include "platform/WideText.h"

namespace cvlang {

// Not through the toolkit's own conversions: they drop or refuse texts with a lone half.
wxString ToWx(std::u16string_view text) {
    return wxString(WideFromUtf16(text));
}

std::u16string FromWx(const wxString& text) {
    return Utf16FromWide(text.ToStdWstring());
}

}  // namespace cvlang
