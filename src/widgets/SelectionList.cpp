#include "widgets/SelectionList.h"

#include <wx/wupdlock.h>

#include "widgets/Text.h"

namespace cvlang {

SelectionList::SelectionList(wxWindow* parent, const wxString& name, std::function<void()> onClick,
                             long style)
    : onClick_(std::move(onClick)) {
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
           wxLB_SINGLE | wxLB_NEEDED_SB | style, wxDefaultValidator, name);
    Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { OnSelected(); });
    Bind(wxEVT_SET_FOCUS, &SelectionList::OnFocus, this);
}

void SelectionList::Fill(std::vector<std::u16string> entries) {
    const wxWindowUpdateLocker locked(this);
    Clear();
    entries_ = std::move(entries);
    for (const std::u16string& entry : entries_)
        Append(ToWx(entry));
}

std::u16string SelectionList::SelectedText() const {
    const int selection = GetSelection();
    return selection == wxNOT_FOUND ? std::u16string()
                                    : entries_[static_cast<std::size_t>(selection)];
}

void SelectionList::Click(std::size_t index) {
    if (index >= entries_.size())
        return;
    // This scrolls as well. GTK, asked to scroll once more before it has measured the rows, draws
    // them over each other.
    SetSelection(static_cast<int>(index));
    onClick_();
}

// A GTK list without a selection selects its first entry when the keyboard reaches it, and reports
// that as a click. Here a focus alone clicks nothing.
void SelectionList::OnFocus(wxFocusEvent& event) {
    event.Skip();
    if (GetSelection() == wxNOT_FOUND && !wxGetMouseState().LeftIsDown()) {
        gettingFocus_ = true;
        CallAfter([this] { gettingFocus_ = false; });
    }
}

void SelectionList::OnSelected() {
    if (gettingFocus_) {
        SetSelection(wxNOT_FOUND);
    } else {
        onClick_();
    }
}

}  // namespace cvlang
