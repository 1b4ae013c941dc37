// The dialog that asks for a new language.
#pragma once

#include <wx/dialog.h>

#include <string>

namespace cvlang {

class TextBox;

class frmAddLanguage : public wxDialog {
  public:
    explicit frmAddLanguage(wxWindow* parent);

    /// Shows the dialog. True when a name was entered; both texts are returned then, and left alone
    /// otherwise. The abbreviation may be empty.
    bool AddLanguage(std::u16string& sLanguage, std::u16string& sAbbrev);

  private:
    void OnOk();

    TextBox* txtLanguage;
    TextBox* txtAbbrev;
    std::u16string name_;
    std::u16string abbreviation_;
};

}  // namespace cvlang
