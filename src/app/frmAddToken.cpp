#include "app/frmAddToken.h"

#include <wx/button.h>

#include "app/Operations.h"
#include "translation/TokenEditing.h"
#include "translation/TokenMapFile.h"
#include "widgets/Layout.h"
#include "widgets/MessageBoxes.h"
#include "widgets/TextBox.h"

namespace cvlang {

frmAddToken::frmAddToken(wxWindow* parent, UserMessages& messages)
    : wxDialog(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, kDialogStyle,
               "frmAddToken"),
      messages_(messages) {
    wxSizer& column = StartColumn(*this);
    AddLabel(*this, column, "Label1", "Token Name:");
    txtTokenName = AddToColumn(column, new TextBox(this, "txtTokenName"));
    AddLabel(*this, column, "Label3", "English Value:");
    txtTokenValue = AddToColumn(column, new TextBox(this, "txtTokenValue"));
    cmdAction = NamedButton(this, wxID_OK, "Remove", "cmdAction");
    auto* cmdCancel = NamedButton(this, wxID_CANCEL, "Cancel", "cmdCancel");
    AddDialogButtons(*this, column, cmdAction, cmdCancel);
    FitDialog(*this);
}

void frmAddToken::AddToken(const std::filesystem::path& sTokenFile) {
    ShowFor("Add New Token", "Add",
            [&] { AddTokenLine(sTokenFile, txtTokenName->Text(), txtTokenValue->Text()); });
}

void frmAddToken::RemoveToken(const std::filesystem::path& sTokenFile,
                              std::u16string_view sTokenName) {
    for (TextBox* box : {txtTokenName, txtTokenValue})
        box->SetEditable(false);
    const TokenEntry entry = SplitTokenEntry(sTokenName);
    txtTokenName->Load(entry.token);
    txtTokenValue->Load(entry.value);
    ShowFor("Remove Token", "Remove",
            [&] { RemoveTokenAsAsked(messages_, sTokenFile, txtTokenName->Text()); });
}

void frmAddToken::ShowFor(const wxString& title, const wxString& caption,
                          const std::function<void()>& action) {
    SetTitle(title);
    cmdAction->SetLabel(caption);
    cmdAction->Bind(wxEVT_BUTTON, [this, action](wxCommandEvent&) {
        ShowingErrors(messages_, action);
        EndDialog(wxID_OK);
    });
    ShowModal();
    // When a box and its dialog close at once, window managers leave no window active.
    GetParent()->Raise();
}

}  // namespace cvlang
