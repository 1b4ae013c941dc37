// The dialog that asks for a new language.
#pragma once

#include <wx/dialog.h>

#include <string>

namespace cvlang {

class TextBox;

class frmAddLanguage : public wxDialog {
  public:
    explicit frmAddLanguage(wxWindow* parent);

    /// Shows the dialog. True, with both texts, when a name was entered; otherwise the texts are
    /// unchanged. The abbreviation may be empty.
    bool AddLanguage(std::u16string& sLanguage, std::u16string& sAbbrev);

  private:
    TextBox* txtLanguage;
    TextBox* txtAbbrev;
};

}  // namespace cvlang
