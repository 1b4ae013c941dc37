#include "widgets/Dialogs.h"

#include <wx/button.h>

#include "widgets/Layout.h"

namespace cvlang {
namespace {

constexpr int kComfortableWidth = 400;

}  // namespace

wxSizer& StartColumn(wxDialog& dialog) {
    auto* margin = new wxBoxSizer(wxVERTICAL);
    auto* column = new wxBoxSizer(wxVERTICAL);
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, dialog.FromDIP(kWindowMargin)));
    dialog.SetSizer(margin);
    return *column;
}

void AddDialogButtons(wxDialog& dialog, wxSizer& column, wxButton* action, wxButton* cancel) {
    auto* buttons = new wxStdDialogButtonSizer;
    buttons->AddButton(action);
    buttons->AddButton(cancel);
    buttons->Realize();
    action->SetDefault();
    column.AddStretchSpacer();
    column.Add(buttons, wxSizerFlags().Right().Border(wxTOP, dialog.FromDIP(kWindowMargin)));
}

void FitDialog(wxDialog& dialog) {
    dialog.GetSizer()->SetSizeHints(&dialog);
    dialog.SetSize(dialog.FromDIP(wxSize(kComfortableWidth, -1)));
    dialog.CentreOnParent();
}

}  // namespace cvlang
