#include "app/frmAddToken.h"

#include <wx/button.h>

#include "app/TokenRemoval.h"
#include "translation/TokenEditing.h"
#include "translation/TokenMapFile.h"
#include "widgets/Dialogs.h"
#include "widgets/ErrorGuard.h"
#include "widgets/Layout.h"
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
    cmdAction->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        ShowingErrors(messages_, [this] { OnAction(); });
        EndDialog(wxID_OK);
    });
    FitDialog(*this);
}

void frmAddToken::AddToken(const std::filesystem::path& sTokenFile) {
    tokenFile_ = sTokenFile;
    ShowFor(Mode::Add, "Add New Token", "Add");
}

void frmAddToken::RemoveToken(const std::filesystem::path& sTokenFile,
                              std::u16string_view sTokenName) {
    tokenFile_ = sTokenFile;
    for (TextBox* box : {txtTokenName, txtTokenValue})
        box->SetEditable(false);
    const TokenEntry entry = SplitTokenEntry(sTokenName);
    txtTokenName->Load(entry.token);
    txtTokenValue->Load(entry.value);
    ShowFor(Mode::Remove, "Remove Token", "Remove");
}

void frmAddToken::ShowFor(Mode mode, const wxString& caption, const wxString& action) {
    mode_ = mode;
    SetTitle(caption);
    cmdAction->SetLabel(action);
    ShowModal();
}

void frmAddToken::OnAction() {
    if (mode_ == Mode::Add) {
        AddTokenLine(tokenFile_, txtTokenName->Text(), txtTokenValue->Text());
    } else {
        RemoveTokenAsAsked(messages_, tokenFile_, txtTokenName->Text());
    }
}

}  // namespace cvlang
