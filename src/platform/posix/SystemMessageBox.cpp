#include "platform/SystemMessageBox.h"

namespace cvlang {

bool HasSystemMessageBox() {
    return false;
}

int SystemMessageBox(void*, std::u16string_view, std::u16string_view, int) {
    return 0;
}

}  // namespace cvlang
