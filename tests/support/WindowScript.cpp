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
    EXPECT_TRUE(IsDone()) << "did not come: " << steps_.front().title;
    Unregister();
}

void WindowScript::ExpectBox(const wxString& title, const wxString& text, long style, int answer) {
    steps_.push_back({title, text, style, answer, nullptr});
}

void WindowScript::ExpectDialog(const wxString& name, std::function<void(wxDialog&)> actions) {
    steps_.push_back({name, wxString(), 0, wxID_CANCEL, std::move(actions)});
}

int WindowScript::Enter(wxDialog* dialog) {
    if (steps_.empty()) {
        ADD_FAILURE() << "not foreseen: " << dialog->GetTitle();
        return wxID_CANCEL;
    }
    const Step step = steps_.front();
    steps_.pop_front();
    return step.actions ? WorkIn(step, *dialog) : AnswerBox(step, *dialog);
}

int WindowScript::AnswerBox(const Step& step, wxDialog& dialog) {
    EXPECT_EQ(dialog.GetTitle(), step.title);
    const auto* box = dynamic_cast<wxMessageDialog*>(&dialog);
    EXPECT_NE(box, nullptr) << "not a message box";
    if (box != nullptr) {
        constexpr long kAskedFor = wxYES_NO | wxOK | wxCANCEL | wxICON_MASK;
        EXPECT_EQ(box->GetMessage(), step.text);
        EXPECT_EQ(box->GetMessageDialogStyle() & kAskedFor, step.style) << step.text;
    }
    return step.answer;
}

/// The dialog is shown, and the actions run inside its own event loop.
int WindowScript::WorkIn(const Step& step, wxDialog& dialog) {
    EXPECT_EQ(dialog.GetName(), step.title);
    dialog.CallAfter([step, &dialog] {
        step.actions(dialog);
        if (dialog.IsShown()) {
            ADD_FAILURE() << dialog.GetTitle() << " is still open";
            dialog.EndModal(wxID_CANCEL);
        }
    });
    return wxID_NONE;
}

}  // namespace cvlang
