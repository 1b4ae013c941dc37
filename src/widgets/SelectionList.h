// A list box as the program's windows use it: one entry is selected, and selecting one by code is a
// click as well.
#pragma once

#include <wx/listbox.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace cvlang {

class SelectionList : public wxListBox {
  public:
    /// `onClick` is called after an entry was selected by mouse, key or code, and after a click on
    /// the selected entry.
    SelectionList(wxWindow* parent, const wxString& name, std::function<void()> onClick,
                  long style = 0);

    /// Decides whether a click on the selected entry counts; without it each does.
    void SetRepeatable(std::function<bool()> mayRepeat) { mayRepeat_ = std::move(mayRepeat); }

    /// Replaces the entries; none is selected then. The beginning of a very long one is shown.
    void Fill(std::vector<std::u16string> entries);
    const std::vector<std::u16string>& Entries() const { return entries_; }

    /// The selected entry, counted from 0.
    std::optional<std::size_t> Selected() const;
    /// The selected entry's text, exactly as it was filled in; empty when none is selected.
    std::u16string SelectedText() const;

    /// Selects an entry and runs the click; does nothing when there is no such entry.
    void Click(std::size_t index);

  private:
    void OnFocus(wxFocusEvent& event);
    void OnSelected();
    void OnMouseDown(wxMouseEvent& event);
    void OnMouseUp(wxMouseEvent& event);
    void OnLetter(wxKeyEvent& event);

    std::vector<std::u16string> entries_;  // a control may show a text otherwise than it is
    std::function<void()> onClick_;
    std::function<bool()> mayRepeat_ = [] { return true; };
    int pressed_ = wxNOT_FOUND;  // the selected entry while the mouse is down on it
    bool gettingFocus_ = false;
};

}  // namespace cvlang
