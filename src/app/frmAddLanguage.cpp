#include "app/frmAddLanguage.h"

#include <wx/button.h>

#include "widgets/Dialogs.h"
#include "widgets/Layout.h"
#include "widgets/TextBox.h"

namespace cvlang {

frmAddLanguage::frmAddLanguage(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Add Language", wxDefaultPosition, wxDefaultSize, kDialogStyle,
               "frmAddLanguage") {
    wxSizer& column = StartColumn(*this);
    AddLabel(*this, column, "Label1", "Enter language name:");
    txtLanguage = AddToColumn(column, new TextBox(this, "txtLanguage"));
    AddLabel(*this, column, "Label2", "Enter abbreviation for language (e.g. EN):");
    txtAbbrev = AddToColumn(column, new TextBox(this, "txtAbbrev"));
    auto* cmdOK = NamedButton(this, wxID_OK, "OK", "cmdOK");
    auto* cmdQuit = NamedButton(this, wxID_CANCEL, "Cancel", "cmdQuit");
    AddDialogButtons(*this, column, cmdOK, cmdQuit);
    cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnOk(); });
    FitDialog(*this);
}

bool frmAddLanguage::AddLanguage(std::u16string& sLanguage, std::u16string& sAbbrev) {
    name_.clear();
    abbreviation_.clear();
    ShowModal();
    if (name_.empty())
        return false;
    sLanguage = name_;
    sAbbrev = abbreviation_;
    return true;
}

void frmAddLanguage::OnOk() {
    name_ = txtLanguage->Text();
    abbreviation_ = txtAbbrev->Text();
    EndDialog(wxID_OK);
}

}  // namespace cvlang
