// A list box as the program's windows use it: one entry is selected, and selecting one by code is a
// click as well.
#pragma once

#include <wx/listbox.h>

#include <functional>
#include <string>
#include <vector>

namespace cvlang {

class SelectionList : public wxListBox {
  public:
    /// `onClick` is called after another entry was selected by mouse, key or code.
    SelectionList(wxWindow* parent, const wxString& name, std::function<void()> onClick,
                  long style = 0);

    /// Replaces the entries; none is selected then.
    void Fill(std::vector<std::u16string> entries);
    const std::vector<std::u16string>& Entries() const { return entries_; }

    /// The selected entry's text, exactly as it was filled in; empty when none is selected.
    std::u16string SelectedText() const;

    /// Selects an entry and runs the click; does nothing when there is no such entry.
    void Click(std::size_t index);

  private:
    void OnFocus(wxFocusEvent& event);
    void OnSelected();

    std::vector<std::u16string> entries_;  // a control may show a text otherwise than it is
    std::function<void()> onClick_;
    bool gettingFocus_ = false;
};

}  // namespace cvlang
