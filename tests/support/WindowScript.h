// What a user does at windows, in tests: answers boxes, works in dialogs, presses, picks and types.
// Buttons, menu entries, lists and fields are found by the texts on the screen.
#pragma once

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/image.h>
#include <wx/modalhook.h>
#include <wx/window.h>

#include <deque>
#include <functional>

#include "widgets/SelectionList.h"
#include "widgets/TextBox.h"

/// How a failed comparison shows the toolkit's texts.
inline void PrintTo(const wxString& text, std::ostream* out) {
    *out << text.utf8_string();
}

namespace cvlang {

/// Lets the toolkit process everything that is waiting, or comes within this time.
void Settle(int milliseconds = 0);

/// A visible control in a window: a button by its caption, another one by the label before it, one
/// without either by its name. Throws when there is none.
wxWindow& FindByText(wxWindow& parent, const wxString& text);

template <typename Window>
Window& Find(wxWindow& parent, const wxString& text) {
    return dynamic_cast<Window&>(FindByText(parent, text));
}

/// Presses a button, which must be enabled and inside the screen.
void Press(wxWindow& parent, const wxString& button);
/// Chooses an entry of a menu, both without their mnemonics.
void Choose(wxFrame& frame, const wxString& menu, const wxString& entry);
/// Selects an entry as a mouse click or an arrow key does.
void Pick(wxWindow& parent, const wxString& list, const std::u16string& entry);
/// Replaces the text of a box as typing does.
void Type(wxWindow& parent, const wxString& box, const std::u16string& text);

/// What the screen shows at a place.
wxImage ScreenPixels(const wxRect& place);
/// How much of a window has colours that count: from 0 to 1.
double ShareOf(const wxWindow& window, bool (*counts)(int red, int blue));
/// Black or nearly so, as texts are.
inline bool IsDark(int red, int blue) {
    return red < 100 && blue < 100;
}

/// Stands by while windows wait for the user. Each box and dialog must have been foreseen, in
/// order; one that was not is closed and fails the test, as does one that does not come.
class WindowScript : private wxModalDialogHook {
  public:
    WindowScript() { Register(); }
    ~WindowScript() override;

    /// A message box: its title, text and style flags (buttons and icon), and the answer.
    void ExpectBox(const wxString& title, const wxString& text, long style, int answer = wxID_OK);
    /// A dialog of the program, by its title; the actions close it, as a user must.
    void ExpectDialog(const wxString& title, std::function<void(wxDialog&)> actions);

  private:
    int Enter(wxDialog* dialog) override;
    void Exit(wxDialog*) override { shown_ = nullptr; }

    /// What is foreseen, by its title: looks at the dialog and returns the answer.
    std::deque<std::pair<wxString, std::function<int(wxDialog&)>>> steps_;
    wxDialog* shown_ = nullptr;  // some dialogs report twice that they are shown
};

}  // namespace cvlang
