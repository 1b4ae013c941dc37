#include "widgets/TextBox.h"

#include <wx/clipbrd.h>
#include <wx/utils.h>

#include <algorithm>

#include "widgets/Text.h"

namespace cvlang {
namespace {

// GTK keeps 65,534 bytes of UTF-8 in a box of one line.
constexpr std::size_t kMostBytes = 65000;

/// Whether a change only continues the one before: one more character of the same word.
bool ContinuesWord(const wxString& before, const wxString& after) {
    return after.length() == before.length() + 1 && after.StartsWith(before) && !before.empty() &&
           !before.EndsWith(" ");
}

wxString ClipboardText() {
    wxTextDataObject data;
    const wxClipboardLocker locked;
    return !locked ? wxString() : (wxTheClipboard->GetData(data), data.GetText());
}

/// A value cannot hold a line's end, and a TAB would end it.
wxString OnOneLine(wxString text) {
    text.Replace("\r\n", " ");
    for (const char* separator : {"\r", "\n", "\t"})
        text.Replace(separator, " ");
    return text;
}

}  // namespace

TextBox::TextBox(wxWindow* parent, const wxString& name, long style)
    : wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, style,
                 wxDefaultValidator, name) {
    Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
        OnChanged();
        event.Skip();
    });
    Bind(wxEVT_TEXT_PASTE, &TextBox::OnPaste, this);
    Bind(wxEVT_KEY_DOWN, &TextBox::OnKey, this);
}

void TextBox::Load(std::u16string_view text) {
    const bool mayEdit = IsEditable() || !holdsAll_;
    const wxString wanted = ToWx(text);
    // Emptied first: an equal text would leave the control's own undo as it is.
    ChangeValue(wxEmptyString);
    ChangeValue(wanted);
    loaded_ = text;
    shown_ = current_ = GetValue();
    holdsAll_ = IsMultiLine() || (shown_ == wanted && !IsTooLong(wanted));
    SetEditable(mayEdit && holdsAll_);
    earlier_.clear();
    later_.clear();
}

std::u16string TextBox::Text() const {
    return IsChanged() ? FromWx(GetValue()) : loaded_;
}

void TextBox::Keep() {
    loaded_ = Text();
    shown_ = GetValue();
}

void TextBox::OnChanged() {
    wxString value = GetValue();
    if (value == current_)
        return;
    if (IsTooLong(value)) {
        Restore(current_, GetInsertionPoint());
        wxBell();
        return;
    }
    // Text can come in otherwise than by pasting: dropped, or with the middle button.
    if (!IsMultiLine() && value != OnOneLine(value)) {
        value = OnOneLine(value);
        Restore(value, GetInsertionPoint());
    }
    if (earlier_.empty() || !ContinuesWord(current_, value))
        earlier_.push_back(current_);
    later_.clear();
    current_ = value;
}

void TextBox::OnPaste(wxClipboardTextEvent& event) {
    const wxString text = ClipboardText();
    if (!IsEditable() || IsMultiLine() || text == OnOneLine(text)) {
        event.Skip();
    } else {
        WriteText(OnOneLine(text));
    }
}

// The same on all systems. The control's own undo, where it has one, goes back too far.
void TextBox::OnKey(wxKeyEvent& event) {
    const int modifiers = event.GetModifiers();
    if (event.GetKeyCode() == 'Z' && modifiers == wxMOD_CONTROL) {
        Step(earlier_, later_);
    } else if ((event.GetKeyCode() == 'Y' && modifiers == wxMOD_CONTROL) ||
               (event.GetKeyCode() == 'Z' && modifiers == (wxMOD_CONTROL | wxMOD_SHIFT))) {
        Step(later_, earlier_);
    } else {
        event.Skip();
    }
}

/// A box of one line silently drops what goes beyond its limit.
bool TextBox::IsTooLong(const wxString& text) const {
    return !IsMultiLine() && text.utf8_str().length() > kMostBytes;
}

void TextBox::Restore(const wxString& text, long position) {
    ChangeValue(text);
    SetInsertionPoint(std::min(position, GetLastPosition()));
}

void TextBox::Step(std::vector<wxString>& from, std::vector<wxString>& to) {
    if (from.empty())
        return;
    to.push_back(current_);
    current_ = from.back();
    from.pop_back();
    ChangeValue(current_);
    SetInsertionPointEnd();
}

}  // namespace cvlang
