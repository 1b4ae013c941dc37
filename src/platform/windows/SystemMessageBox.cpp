#include "platform/SystemMessageBox.h"

#include <windows.h>

#include <string>

namespace cvlang {

bool HasSystemMessageBox() {
    return true;
}

int SystemMessageBox(void* owner, std::u16string_view text, std::u16string_view title, int style) {
    return MessageBoxW(static_cast<HWND>(owner), std::wstring(text.begin(), text.end()).c_str(),
                       std::wstring(title.begin(), title.end()).c_str(),
                       static_cast<UINT>(style) | (owner == nullptr ? MB_TASKMODAL : 0));
}

}  // namespace cvlang
