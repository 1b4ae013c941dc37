// A text box that loses nothing: what a control cannot hold stays beside it.
#pragma once

#include <wx/textctrl.h>

#include <string>
#include <string_view>
#include <vector>

namespace cvlang {

/// Of one line, unless the style is that of several. Ctrl+Z goes back by one change, words at a
/// time, Ctrl+Y or Ctrl+Shift+Z forward again.
class TextBox : public wxTextCtrl {
  public:
    TextBox(wxWindow* parent, const wxString& name, long style = 0);

    /// Shows a text; there is nothing to undo then. One that the box cannot hold as a whole cannot
    /// be edited.
    void Load(std::u16string_view text);

    /// The text of the box. One that was loaded and not changed comes back exactly, whatever the
    /// control made of it (a line's end, a lone surrogate half, a length beyond its limit).
    std::u16string Text() const;

    /// Whether the text is another than the one that was loaded or last kept.
    bool IsChanged() const { return GetValue() != shown_; }
    /// The text of the box has been saved.
    void Keep();

  private:
    void OnChanged();
    void OnPaste(wxClipboardTextEvent& event);
    void OnKey(wxKeyEvent& event);
    bool IsTooLong(const wxString& text) const;
    void Restore(const wxString& text, long position);
    void Step(std::vector<wxString>& from, std::vector<wxString>& to);

    std::u16string loaded_;
    wxString shown_;                 // what the control made of the loaded text
    wxString current_;               // the text after the last change
    std::vector<wxString> earlier_;  // the texts to go back to, the latest last
    std::vector<wxString> later_;    // those to go forward to, the next last
    bool holdsAll_ = true;
};

}  // namespace cvlang
