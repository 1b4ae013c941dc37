#include "widgets/Layout.h"

#include <wx/app.h>
#include <wx/button.h>
#include <wx/stattext.h>

#include "widgets/NativeControls.h"

namespace cvlang {

wxStaticText* AddLabel(wxWindow& parent, wxSizer& column, const wxString& name,
                       const wxString& text) {
    auto* label = new wxStaticText(&parent, wxID_ANY, text);
    label->SetName(name);
    if (!column.IsEmpty())
        column.AddSpacer(parent.FromDIP(kGap));
    column.Add(label, wxSizerFlags().Border(wxBOTTOM, parent.FromDIP(kLabelGap)));
    return label;
}

wxButton* NamedButton(wxWindow* parent, wxWindowID id, const wxString& caption,
                      const wxString& name) {
    return new wxButton(parent, id, caption, wxDefaultPosition, wxDefaultSize, 0,
                        wxDefaultValidator, name);
}

wxSizer& StartColumn(wxDialog& dialog) {
    auto* margin = new wxBoxSizer(wxVERTICAL);
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->SetMinSize(dialog.FromDIP(wxSize(kDialogWidth, -1)));
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, dialog.FromDIP(kWindowMargin)));
    dialog.SetSizer(margin);
    SetProgramIcon(dialog);
    return *column;
}

void AddDialogButtons(wxDialog& dialog, wxSizer& column, wxButton* action, wxButton* cancel) {
    auto* buttons = new wxStdDialogButtonSizer;
    buttons->AddButton(action);
    buttons->AddButton(cancel);
    buttons->Realize();
    // The system's own margin at the right: the buttons are to line up with the boxes.
    const wxSizerItemList& items = buttons->GetChildren();
    while (items.GetLast()->GetData()->IsSpacer())
        buttons->Remove(static_cast<int>(items.size()) - 1);
    wxSizerItem& last = *items.GetLast()->GetData();
    last.SetFlag(last.GetFlag() & ~wxRIGHT);
    action->SetDefault();
    column.AddStretchSpacer();
    column.Add(buttons, wxSizerFlags().Right().Border(wxTOP, dialog.FromDIP(kWindowMargin)));
}

void FitDialog(wxDialog& dialog) {
    dialog.GetSizer()->SetSizeHints(&dialog);
    dialog.CentreOnParent();
}

// Not where mail is sent: on Windows this header makes SendMessage a macro.
void RepaintWindows() {
    wxTheApp->Yield(true);
}

}  // namespace cvlang
