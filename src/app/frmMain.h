// The main window: selects application, base, language and token, edits and generates.
#pragma once

#include <wx/frame.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "app/MakerServices.h"
#include "app/frmWait.h"
#include "run/Program.h"
#include "translation/Selection.h"

class wxButton;
class wxListCtrl;
class wxPanel;
class wxStaticText;

namespace cvlang {

class SelectionList;
class TextBox;

class frmMain : public wxFrame {
  public:
    // Menu entries. Deliberate: one name has another prefix.
    enum MenuId {
        mnuFetchDefault = wxID_HIGHEST + 1,
        mnuNewLanguage,
        mnuFileExit,
        mnuSubmitActive,
        menuSubmitAll,
        mnuHelpAbout
    };

    /// Fills the lists. The program must outlive the window, which shows its progress.
    frmMain(Program& program, MakerServices services);
    ~frmMain() override;

  private:
    using Action = void (frmMain::*)();

    void CreateMenu();
    void CreateControls();
    void CreateSelection(wxSizer& column);
    void CreateTokens(wxSizer& column);
    void CreateDetails(wxSizer& column);
    void CreateButtons(wxSizer& column);
    void CreateKeys();
    SelectionList* AddList(wxSizer& column, const char* labelName, const char* label,
                           const char* name, Action onClick, long style);
    wxButton* CreateButton(wxWindow& parent, const char* caption, const char* name, Action onClick);
    void OnCommand(int id, Action action);
    void Guarded(Action action);
    void OnResized(wxSizeEvent& event);
    void FitDetails();

    void LoadWindow();
    void FillBases();
    void LoadTokenList();
    void LoadLanguageList(const std::u16string& listedUnder);

    void OnApplicationClick();
    void OnBaseClick();
    void OnTokenClick();

    void OnUpdate();
    void OnApply();
    void OnAddToken();
    void OnRemoveToken();
    void OnQuit();

    void OnFetchDefault();
    void OnNewLanguage();
    void OnSubmitActive();
    void OnSubmitAll();
    void OnAbout();

    void OnSaveAndNext();
    void OnNext();
    void OnPrevious();
    void OnNextUntranslated();
    void OnFind();
    void OnFindNext();
    void ClickFound(std::optional<std::size_t> index);

    Selection CurrentSelection() const;
    std::filesystem::path ReferenceMapFile() const;

    Program& program_;
    MakerServices services_;
    WaitWindow waiting_;
    std::u16string soughtText_;

    wxPanel* panel_ = nullptr;
    wxStaticText* Label7 = nullptr;
    SelectionList* lstApplication = nullptr;
    SelectionList* lstBases = nullptr;
    SelectionList* lstLanguages = nullptr;
    SelectionList* lbxTokens = nullptr;
    wxListCtrl* lvwTokenDetails = nullptr;
    TextBox* txtTranslation = nullptr;
};

}  // namespace cvlang
