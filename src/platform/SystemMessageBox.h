// Message boxes of the system itself.
#pragma once

#include <string_view>

namespace cvlang {

/// Whether the system has boxes of its own that show every icon. Otherwise the toolkit shows them.
bool HasSystemMessageBox();

/// Shows a text as it is, line breaks included, and returns the number of the pressed button (IDOK,
/// IDYES and so on). `style` is the sum of the numbers of buttons and icon (MB_YESNO,
/// MB_ICONQUESTION), `owner` the handle of the window in front of which the box is shown, or null.
int SystemMessageBox(void* owner, std::u16string_view text, std::u16string_view title, int style);

}  // namespace cvlang
