#include "widgets/TextBox.h"

#include <wx/clipbrd.h>

#include "widgets/Text.h"

namespace cvlang {
namespace {

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

TextBox::TextBox(wxWindow* parent, const wxString& name)
    : wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, 0,
                 wxDefaultValidator, name) {
    Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
        OnChanged();
        event.Skip();
    });
    Bind(wxEVT_TEXT_PASTE, &TextBox::OnPaste, this);
}

void TextBox::Load(std::u16string_view text) {
    loaded_ = text;
    ChangeValue(ToWx(text));
    shown_ = current_ = GetValue();
    earlier_.clear();
}

std::u16string TextBox::Text() const {
    const wxString value = GetValue();
    return value == shown_ ? loaded_ : FromWx(value);
}

void TextBox::UndoChange() {
    if (earlier_.empty())
        return;
    current_ = earlier_.back();
    earlier_.pop_back();
    ChangeValue(current_);
    SetInsertionPointEnd();
}

void TextBox::OnChanged() {
    wxString value = GetValue();
    if (value == current_)
        return;
    // Text can come in otherwise than by pasting: dropped, or with the middle button.
    if (value != OnOneLine(value)) {
        value = OnOneLine(value);
        const long position = GetInsertionPoint();
        ChangeValue(value);
        SetInsertionPoint(position);
    }
    if (earlier_.empty() || !ContinuesWord(current_, value))
        earlier_.push_back(current_);
    current_ = value;
}

void TextBox::OnPaste(wxClipboardTextEvent& event) {
    const wxString text = ClipboardText();
    if (!IsEditable() || text == OnOneLine(text)) {
        event.Skip();
    } else {
        WriteText(OnOneLine(text));
    }
}

}  // namespace cvlang
