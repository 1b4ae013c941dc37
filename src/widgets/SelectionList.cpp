#include "widgets/SelectionList.h"

#include "platform/Ansi.h"
#include "widgets/NativeControls.h"
#include "widgets/Text.h"

namespace cvlang {

SelectionList::SelectionList(wxWindow* parent, const wxString& name, std::function<void()> onClick,
                             long style)
    : onClick_(std::move(onClick)) {
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
           wxLB_SINGLE | wxLB_NEEDED_SB | style, wxDefaultValidator, name);
    Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { OnSelected(); });
    Bind(wxEVT_SET_FOCUS, &SelectionList::OnFocus, this);
    Bind(wxEVT_LEFT_DOWN, &SelectionList::OnMouseDown, this);
    Bind(wxEVT_LEFT_DCLICK, &SelectionList::OnMouseDown, this);
    Bind(wxEVT_LEFT_UP, &SelectionList::OnMouseUp, this);
    Bind(wxEVT_CHAR, &SelectionList::OnLetter, this);
}

void SelectionList::Fill(std::vector<std::u16string> entries) {
    entries_ = std::move(entries);
    pressed_ = wxNOT_FOUND;
    wxArrayString shown;
    shown.Alloc(entries_.size());
    for (const std::u16string& entry : entries_)
        shown.Add(ToWx(Shortened(entry)));
    ReplaceEntries(*this, shown);
}

std::optional<std::size_t> SelectionList::Selected() const {
    const int selection = GetSelection();
    return selection == wxNOT_FOUND ? std::nullopt
                                    : std::optional(static_cast<std::size_t>(selection));
}

std::u16string SelectionList::SelectedText() const {
    return Selected() ? entries_[*Selected()] : std::u16string();
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
    if (GetSelection() == wxNOT_FOUND) {
        gettingFocus_ = true;
        CallAfter([this] { gettingFocus_ = false; });
    }
}

void SelectionList::OnSelected() {
    if (gettingFocus_)
        return SetSelection(wxNOT_FOUND);
    pressed_ = wxNOT_FOUND;
    onClick_();
}

// The toolkit reports no click on the entry that is selected already.
void SelectionList::OnMouseDown(wxMouseEvent& event) {
    event.Skip();
    SetFocus();  // before the toolkit does: what it selects from now on is clicked
    gettingFocus_ = false;
    pressed_ = HitTest(event.GetPosition()) == GetSelection() ? GetSelection() : wxNOT_FOUND;
}

void SelectionList::OnMouseUp(wxMouseEvent& event) {
    event.Skip();
    const bool isRepeated = pressed_ != wxNOT_FOUND && HitTest(event.GetPosition()) == pressed_;
    pressed_ = wxNOT_FOUND;
    if (isRepeated && mayRepeat_())
        onClick_();
}

/// A letter selects the next entry that begins with it, the same on all systems.
void SelectionList::OnLetter(wxKeyEvent& event) {
    if (event.HasModifiers() || event.GetUnicodeKey() <= WXK_SPACE) {
        event.Skip();
        return;
    }
    const std::u16string wanted = ToUpper(FromWx(wxString(event.GetUnicodeKey())));
    const auto start = static_cast<std::size_t>(GetSelection()) + 1;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        const std::size_t index = (start + i) % entries_.size();
        if (ToUpper(std::u16string_view(entries_[index]).substr(0, wanted.size())) == wanted)
            return Click(index);
    }
}

}  // namespace cvlang
