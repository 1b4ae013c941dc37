// What a user does at windows, in tests: answers boxes, works in dialogs, presses, picks and types.
#pragma once

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/modalhook.h>
#include <wx/window.h>

#include <deque>
#include <functional>
#include <string>

#include "widgets/SelectionList.h"
#include "widgets/TextBox.h"

/// How a failed comparison shows the toolkit's texts.
inline void PrintTo(const wxString& text, std::ostream* out) {
    *out << text.utf8_string();
}

namespace cvlang {

/// Lets the toolkit work through everything that is waiting.
void Settle();

/// A window below another, by its name.
template <typename Window>
Window& Find(wxWindow& parent, const char* name) {
    auto* found = dynamic_cast<Window*>(wxWindow::FindWindowByName(name, &parent));
    EXPECT_NE(found, nullptr) << name;
    return *found;
}

void Press(wxWindow& parent, const char* button);
void Choose(wxWindow& frame, int menuEntry);
/// Selects an entry as a mouse click or an arrow key does.
void Pick(wxWindow& parent, const char* list, const std::u16string& entry);
/// Replaces the text of a box as typing does.
void Type(wxWindow& parent, const char* box, const std::u16string& text);

/// Stands by while windows wait for the user. Each box and dialog must have been foreseen, in
/// order; one that was not is closed and fails the test, as does one that does not come.
class WindowScript : private wxModalDialogHook {
  public:
    WindowScript() { Register(); }
    ~WindowScript() override;

    /// A message box: its title, text and style flags (buttons and icon), and the answer.
    void ExpectBox(const wxString& title, const wxString& text, long style, int answer = wxID_OK);
    /// A dialog of the program; the actions close it, as a user must.
    void ExpectDialog(const wxString& name, std::function<void(wxDialog&)> actions);

  private:
    int Enter(wxDialog* dialog) override;

    /// What is foreseen, by its title or name: looks at the dialog and returns the answer.
    std::deque<std::pair<wxString, std::function<int(wxDialog&)>>> steps_;
};

}  // namespace cvlang
