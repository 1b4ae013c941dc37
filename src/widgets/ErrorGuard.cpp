#include "widgets/ErrorGuard.h"

#include <exception>
#include <filesystem>

#include "platform/Paths.h"
#include "widgets/Text.h"

namespace cvlang {

void ShowingErrors(UserMessages& messages, const std::function<void()>& action) {
    try {
        action();
    } catch (const std::filesystem::filesystem_error& error) {
        const std::u16string reason = FromWx(wxString(error.code().message()));
        messages.Show({TextFromPath(error.path1()) + u"\r\n" + reason, u"Error", MessageButtons::Ok,
                       MessageIcon::Critical});
    } catch (const std::exception& error) {
        messages.Show({FromWx(wxString(error.what())), std::u16string(kProgramTitle),
                       MessageButtons::Ok, MessageIcon::Critical});
    }
}

}  // namespace cvlang
