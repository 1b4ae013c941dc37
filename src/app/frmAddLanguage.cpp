#include "app/frmAddLanguage.h"

#include <wx/button.h>

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
    FitDialog(*this);
}

bool frmAddLanguage::AddLanguage(std::u16string& sLanguage, std::u16string& sAbbrev) {
    if (ShowModal() != wxID_OK || txtLanguage->Text().empty())
        return false;
    sLanguage = txtLanguage->Text();
    sAbbrev = txtAbbrev->Text();
    return true;
}

}  // namespace cvlang
