#include "widgets/MessageBoxes.h"

#include <wx/dcclient.h>
#include <wx/display.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>

#include <wx/generic/msgdlgg.h>  // needs the others

#include <algorithm>
#include <filesystem>
#include <utility>

#include "platform/FileSystem.h"
#include "widgets/NativeControls.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

constexpr std::pair<MessageIcon, long> kIcons[] = {{MessageIcon::Critical, wxICON_ERROR},
                                                   {MessageIcon::Question, wxICON_QUESTION},
                                                   {MessageIcon::Exclamation, wxICON_EXCLAMATION},
                                                   {MessageIcon::Information, wxICON_INFORMATION}};

constexpr std::pair<MessageAnswer, int> kAnswers[] = {{MessageAnswer::Ok, wxID_OK},
                                                      {MessageAnswer::Cancel, wxID_CANCEL},
                                                      {MessageAnswer::Yes, wxID_YES},
                                                      {MessageAnswer::No, wxID_NO}};

long ToolkitStyle(const UserMessage& message) {
    long style = message.buttons == MessageButtons::Ok ? wxOK : wxYES_NO;
    if (message.buttons == MessageButtons::YesNoCancel)
        style |= wxCANCEL;
    for (const auto& [icon, flag] : kIcons)
        style |= icon == message.icon ? flag : 0;
    return style;
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

/// The system's own box, or the toolkit's: the native boxes of GTK have no icons.
class MessageDialog : public wxGenericMessageDialog {
  public:
    explicit MessageDialog(const UserMessage& message)
        : wxGenericMessageDialog(nullptr, WithToolkitLineEnds(message.text), ToWx(message.title),
                                 ToolkitStyle(message)),
          message_(message) {
        if (message.buttons == MessageButtons::YesNo)
            SetEscapeId(wxID_NO);
    }

    int ShowModal() override {
        if (!HasSystemMessageBox())
            return wxGenericMessageDialog::ShowModal();
        WX_HOOK_MODAL_DIALOG();
        const auto pressed = static_cast<MessageAnswer>(ShowSystemMessageBox(
            GetParent(), ToWx(message_.text), ToWx(message_.title),
            static_cast<int>(message_.buttons) | static_cast<int>(message_.icon)));
        for (const auto& [answer, id] : kAnswers) {
            if (answer == pressed)
                return id;
        }
        return wxID_CANCEL;
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
    const int pressed = MessageDialog(message).ShowModal();
    for (const auto& [answer, id] : kAnswers) {
        if (id == pressed)
            return answer;
    }
    return MessageAnswer::Cancel;
}

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
