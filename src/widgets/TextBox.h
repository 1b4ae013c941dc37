// A text box of one line that loses nothing: what a control cannot hold stays beside it.
#pragma once

#include <wx/textctrl.h>

#include <string>
#include <string_view>
#include <vector>

namespace cvlang {

class TextBox : public wxTextCtrl {
  public:
    TextBox(wxWindow* parent, const wxString& name);

    /// Shows a text; there is nothing to undo then.
    void Load(std::u16string_view text);

    /// The text of the box. One that was loaded and not changed comes back exactly, whatever the
    /// control made of it (a line's end, a lone surrogate half, a length beyond its limit).
    std::u16string Text() const;

    /// Goes back by one change, words at a time; the same on all systems.
    void UndoChange();

  private:
    void OnChanged();
    void OnPaste(wxClipboardTextEvent& event);

    std::u16string loaded_;
    wxString shown_;                 // what the control made of the loaded text
    wxString current_;               // the text after the last change
    std::vector<wxString> earlier_;  // the texts to go back to, the latest last
};

}  // namespace cvlang
