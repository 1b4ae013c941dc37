#include "widgets/ErrorGuard.h"

#include <exception>

#include "widgets/Text.h"

namespace cvlang {

void ShowingErrors(UserMessages& messages, const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception& error) {
        messages.Show({FromWx(wxString(error.what())), std::u16string(kProgramTitle),
                       MessageButtons::Ok, MessageIcon::Critical});
    }
}

}  // namespace cvlang
