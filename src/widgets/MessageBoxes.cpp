#include "widgets/MessageBoxes.h"

#include <wx/dcclient.h>
#include <wx/display.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>

#include <wx/generic/msgdlgg.h>  // needs the others

#include <algorithm>

#include "platform/SystemMessageBox.h"
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

/// No style, no icon.
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
            return 0;
    }
}

wxString WithToolkitLineEnds(std::u16string_view text) {
    wxString lines = ToWx(text);
    lines.Replace("\r\n", "\n");
    return lines;
}

/// The toolkit breaks lines at blanks only. A path may have none.
wxString Wrapped(wxString line, const wxDC& dc, int width) {
    for (wxString lines;;) {
        wxArrayInt ends;
        dc.GetPartialTextExtents(line, ends);
        const auto fitting = static_cast<std::size_t>(
            std::lower_bound(ends.begin(), ends.end(), width) - ends.begin());
        if (fitting == line.length())
            return lines + line;
        const std::size_t blank = line.rfind(' ', fitting);
        const std::size_t end = blank == wxString::npos ? fitting : blank + 1;
        lines += line.substr(0, end) + "\n";
        line = line.substr(end);
    }
}

int ToolkitAnswer(MessageAnswer answer) {
    switch (answer) {
        case MessageAnswer::Yes:
            return wxID_YES;
        case MessageAnswer::No:
            return wxID_NO;
        case MessageAnswer::Ok:
            return wxID_OK;
        default:
            return wxID_CANCEL;
    }
}

/// The system's own box, or the toolkit's: the native boxes of GTK have no icons.
class MessageDialog : public wxGenericMessageDialog {
  public:
    explicit MessageDialog(const UserMessage& message)
        : wxGenericMessageDialog(nullptr, WithToolkitLineEnds(message.text), ToWx(message.title),
                                 ButtonStyle(message.buttons) | IconStyle(message.icon)),
          message_(message) {
        if (message.buttons == MessageButtons::YesNo)
            SetEscapeId(wxID_NO);
    }

    int ShowModal() override {
        if (!HasSystemMessageBox())
            return wxGenericMessageDialog::ShowModal();
        WX_HOOK_MODAL_DIALOG();
        const wxWindow* owner = GetParent();
        return ToolkitAnswer(static_cast<MessageAnswer>(SystemMessageBox(
            owner == nullptr ? nullptr : owner->GetHandle(), message_.text, message_.title,
            static_cast<int>(message_.buttons) | static_cast<int>(message_.icon))));
    }

  private:
    /// The place in the dialog's creation where its texts are there and it is not yet laid out.
    void AddMessageDialogCheckBox(wxSizer*) override {
        const wxClientDC dc(this);
        const int width = wxDisplay(this).GetClientArea().width * 2 / 3;
        for (wxWindow* child : GetChildren()) {
            if (auto* line = dynamic_cast<wxStaticText*>(child))
                line->SetLabel(Wrapped(line->GetLabel(), dc, width));
        }
    }

    const UserMessage& message_;
};

}  // namespace

MessageAnswer MessageBoxes::Show(const UserMessage& message) {
    switch (MessageDialog(message).ShowModal()) {
        case wxID_YES:
            return MessageAnswer::Yes;
        case wxID_NO:
            return MessageAnswer::No;
        case wxID_OK:
            return MessageAnswer::Ok;
        default:
            return MessageAnswer::Cancel;
    }
}

}  // namespace cvlang
