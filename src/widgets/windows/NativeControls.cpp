#include "widgets/NativeControls.h"

#include <windows.h>
#include <wx/icon.h>
#include <wx/wupdlock.h>

namespace cvlang {

void ReplaceEntries(wxListBox& list, const wxArrayString& entries) {
    const wxWindowUpdateLocker locked(&list);
    list.Set(entries);
    SendMessageW(list.GetHandle(), WM_HSCROLL, SB_LEFT, 0);
}

// Screen readers take the text of the label that was created before the control.
void SetAccessibleName(wxWindow&, const wxString&) {}

void SetProgramIcon(wxTopLevelWindow& window) {
    if (wxIcon icon; icon.LoadFile("appicon", wxBITMAP_TYPE_ICO_RESOURCE))
        window.SetIcon(icon);
}

bool HasSystemMessageBox() {
    return true;
}

int ShowSystemMessageBox(const wxWindow* owner, const wxString& text, const wxString& title,
                         int style) {
    return MessageBoxW(owner == nullptr ? nullptr : owner->GetHandle(), text.wc_str(),
                       title.wc_str(),
                       static_cast<UINT>(style) | (owner == nullptr ? MB_TASKMODAL : 0));
}

}  // namespace cvlang
