#include "support/WindowScript.h"

#include <wx/app.h>
#include <wx/msgdlg.h>

#include <algorithm>

#include "widgets/Text.h"

namespace cvlang {

void Settle() {
    for (int i = 0; i < 3; ++i) {
        wxTheApp->Yield();
        wxTheApp->ProcessPendingEvents();
    }
}

void Press(wxWindow& parent, const char* button) {
    wxButton& pressed = Find<wxButton>(parent, button);
    wxCommandEvent event(wxEVT_BUTTON, pressed.GetId());
    event.SetEventObject(&pressed);
    pressed.Command(event);
    Settle();
}

void Choose(wxWindow& frame, int menuEntry) {
    wxCommandEvent event(wxEVT_MENU, menuEntry);
    frame.ProcessWindowEvent(event);
    Settle();
}

void Pick(wxWindow& parent, const char* list, const std::u16string& entry) {
    auto& picked = Find<SelectionList>(parent, list);
    const auto& entries = picked.Entries();
    const auto found = std::find(entries.begin(), entries.end(), entry);
    ASSERT_NE(found, entries.end()) << ToWx(entry) << " in " << list;
    wxCommandEvent event(wxEVT_LISTBOX, picked.GetId());
    event.SetInt(static_cast<int>(found - entries.begin()));
    event.SetExtraLong(1);  // selected, not deselected
    event.SetEventObject(&picked);
    picked.Command(event);
    Settle();
}

void Type(wxWindow& parent, const char* box, const std::u16string& text) {
    Find<wxTextCtrl>(parent, box).SetValue(ToWx(text));
    Settle();
}

WindowScript::~WindowScript() {
    EXPECT_TRUE(steps_.empty()) << "did not come: " << steps_.front().first;
    Unregister();
}

void WindowScript::ExpectBox(const wxString& title, const wxString& text, long style, int answer) {
    steps_.emplace_back(title, [=](wxDialog& dialog) {
        constexpr long kAskedFor = wxYES_NO | wxOK | wxCANCEL | wxICON_MASK;
        const auto* box = dynamic_cast<wxMessageDialog*>(&dialog);
        EXPECT_EQ(dialog.GetTitle(), title);
        EXPECT_EQ(box == nullptr ? "not a message box" : box->GetMessage(), text);
        EXPECT_EQ(box == nullptr ? -1 : box->GetMessageDialogStyle() & kAskedFor, style) << text;
        return answer;
    });
}

/// The dialog is shown, and the actions run inside its own event loop.
void WindowScript::ExpectDialog(const wxString& name, std::function<void(wxDialog&)> actions) {
    steps_.emplace_back(name, [name, actions = std::move(actions)](wxDialog& dialog) {
        EXPECT_EQ(dialog.GetName(), name);
        dialog.CallAfter([actions, &dialog] {
            actions(dialog);
            if (dialog.IsShown()) {
                ADD_FAILURE() << dialog.GetTitle() << " is still open";
                dialog.EndModal(wxID_CANCEL);
            }
        });
        return static_cast<int>(wxID_NONE);
    });
}

int WindowScript::Enter(wxDialog* dialog) {
    if (steps_.empty()) {
        ADD_FAILURE() << "not foreseen: " << dialog->GetTitle();
        return wxID_CANCEL;
    }
    const auto step = steps_.front().second;
    steps_.pop_front();
    return step(*dialog);
}

}  // namespace cvlang
