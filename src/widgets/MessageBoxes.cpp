#include "widgets/MessageBoxes.h"

#include <wx/msgdlg.h>

#include "widgets/Text.h"

namespace cvlang {
namespace {

long ButtonStyle(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::YesNo:
            return wxYES_NO;
        case MessageButtons::YesNoCancel:
            return wxYES_NO | wxCANCEL;
        default:
            return wxOK;
    }
}

/// Without a style of its own the toolkit would choose an icon.
long IconStyle(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Critical:
            return wxICON_ERROR;
        case MessageIcon::Question:
            return wxICON_QUESTION;
        case MessageIcon::Exclamation:
            return wxICON_EXCLAMATION;
        case MessageIcon::Information:
            return wxICON_INFORMATION;
        default:
            return wxICON_NONE;
    }
}

}  // namespace

MessageAnswer MessageBoxes::Show(const UserMessage& message) {
    wxString text = ToWx(message.text);
    text.Replace("\r\n", "\n");
    switch (wxMessageBox(text, ToWx(message.title),
                         ButtonStyle(message.buttons) | IconStyle(message.icon))) {
        case wxYES:
            return MessageAnswer::Yes;
        case wxNO:
            return MessageAnswer::No;
        case wxOK:
            return MessageAnswer::Ok;
        default:
            return MessageAnswer::Cancel;
    }
}

}  // namespace cvlang
