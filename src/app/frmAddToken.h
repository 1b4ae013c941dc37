// The dialog that adds a token to an application base or removes one.
#pragma once

#include <wx/dialog.h>

#include <filesystem>
#include <functional>
#include <string_view>

#include "run/UserMessages.h"

class wxButton;

namespace cvlang {

class TextBox;

class frmAddToken : public wxDialog {
  public:
    frmAddToken(wxWindow* parent, UserMessages& messages);

    /// Shows the dialog for a new token, which is appended to the reference map file.
    void AddToken(const std::filesystem::path& sTokenFile);

    /// Shows the dialog for removing the token of a list entry ("[CV_TXT-HELLO]: Hello").
    void RemoveToken(const std::filesystem::path& sTokenFile, std::u16string_view sTokenName);

  private:
    /// Shows the dialog; its first button has this caption and does this.
    void ShowFor(const wxString& title, const wxString& caption,
                 const std::function<void()>& action);

    UserMessages& messages_;
    TextBox* txtTokenName;
    TextBox* txtTokenValue;
    wxButton* cmdAction;
};

}  // namespace cvlang
