#include "app/frmMain.h"

#include <wx/listctrl.h>
#include <wx/textdlg.h>
#include <wx/utils.h>

#include "app/Operations.h"
#include "app/frmAddLanguage.h"
#include "app/frmAddToken.h"
#include "submission/frmSend.h"
#include "translation/Languages.h"
#include "translation/StorePaths.h"
#include "translation/TokenEditing.h"
#include "translation/TokenMapFile.h"
#include "widgets/NativeControls.h"
#include "widgets/SelectionList.h"
#include "widgets/Text.h"
#include "widgets/TextBox.h"

namespace cvlang {

frmMain::frmMain(Program& program, MakerServices services)
    : wxFrame(nullptr, wxID_ANY, "Corvane Language Translation Tool", wxDefaultPosition,
              wxDefaultSize, wxDEFAULT_FRAME_STYLE, "frmMain"),
      program_(program),
      services_(std::move(services)) {
    program_.progress = &waiting_;
    SetProgramIcon(*this);
    CreateMenu();
    CreateControls();
    CreateKeys();
    Guarded(&frmMain::LoadWindow);
    lstApplication->SetFocus();
}

frmMain::~frmMain() {
    program_.progress = &Progress::None();
}

void frmMain::LoadWindow() {
    lstApplication->Fill({std::begin(kApplications), std::end(kApplications)});
    lstApplication->Click(0);
    program_.CurrentApplication = lstApplication->SelectedText();
    FillBases();
    LoadLanguageList(program_.CurrentApplication);
}

void frmMain::FillBases() {
    lstBases->Fill(DetectBases(program_.config, kProbedApplication));
    if (lstBases->Entries().empty()) {
        // Deliberate: "wewre".
        program_.messages.Show({u"Error: No web applications wewre detected", u"Setup Issue",
                                MessageButtons::Ok, MessageIcon::Critical});
    }
    lstBases->Click(0);
}

void frmMain::LoadTokenList() {
    lbxTokens->Fill(ListTokens(ReferenceMapFile()));
    lbxTokens->Click(0);
}

/// Deliberate: clicks pass the application, so the languages are those of App-App-lang.txt.
void frmMain::LoadLanguageList(const std::u16string& listedUnder) {
    lstLanguages->Fill(cvlang::LoadLanguageList(
        program_.config, {.application = program_.CurrentApplication, .base = listedUnder}));
}

void frmMain::OnApplicationClick() {
    program_.CurrentApplication = lstApplication->SelectedText();
    LoadTokenList();
    LoadLanguageList(lstApplication->SelectedText());
}

void frmMain::OnBaseClick() {
    LoadLanguageList(lstApplication->SelectedText());
}

void frmMain::OnTokenClick() {
    const std::u16string selected = lbxTokens->SelectedText();
    const TokenEntry entry = SplitTokenEntry(selected);
    lvwTokenDetails->DeleteAllItems();
    lvwTokenDetails->InsertItem(0, ToWx(Shortened(entry.token)));
    lvwTokenDetails->SetItem(0, 1, ToWx(Shortened(entry.value)));
    lvwTokenDetails->SetToolTip(ToWx(Shortened(entry.value)));
    FitDetails();
    txtTranslation->Load(
        GetTokenValue(program_, selected, lstBases->SelectedText(), lstLanguages->SelectedText()));
}

void frmMain::OnUpdate() {
    UpdateToken(program_, CurrentSelection(), lbxTokens->SelectedText(), txtTranslation->Text());
    txtTranslation->Keep();
}

void frmMain::OnApply() {
    GenerateLanguage(program_, CurrentSelection());
}

void frmMain::OnAddToken() {
    frmAddToken(this, program_.messages).AddToken(ReferenceMapFile());
    LoadTokenList();
}

void frmMain::OnRemoveToken() {
    if (!lbxTokens->Selected())
        return;
    frmAddToken(this, program_.messages).RemoveToken(ReferenceMapFile(), lbxTokens->SelectedText());
    LoadTokenList();
}

void frmMain::OnQuit() {
    Close();
}

void frmMain::OnFetchDefault() {
    FetchDefaultTranslation(program_, services_.distribution, CurrentSelection());
}

void frmMain::OnNewLanguage() {
    const std::u16string base = lstBases->SelectedText();
    frmAddLanguage dialog(this);
    dialog.SetTitle(ToWx(u"Add Language: " + lstApplication->SelectedText() + u"[" + base + u"]"));
    std::u16string name;
    std::u16string abbreviation;
    if (dialog.AddLanguage(name, abbreviation) &&
        AddLanguageToBase(program_, CurrentSelection(), name, abbreviation)) {
        // The list of the base, which has the new language.
        LoadLanguageList(base);
    }
}

void frmMain::OnSubmitActive() {
    const Selection selection = CurrentSelection();
    frmSend(this, program_, services_.submission)
        .SubmitFile(ReferenceMapFile(), GetLanguageMapFilePath(program_.config, selection),
                    selection);
}

void frmMain::OnSubmitAll() {
    frmSend(this, program_, services_.submission)
        .SubmitAllFiles(ReferenceMapFile(), CurrentSelection());
}

void frmMain::OnAbout() {
    program_.messages.Show({u"Corvane Language Translation Utility (Version 3.0)", u"Help About..",
                            MessageButtons::Ok, MessageIcon::Information});
}

void frmMain::OnSaveAndNext() {
    OnUpdate();
    OnNext();
}

void frmMain::OnNext() {
    lbxTokens->Click(static_cast<std::size_t>(lbxTokens->GetSelection()) + 1);
}

void frmMain::OnPrevious() {
    lbxTokens->Click(static_cast<std::size_t>(lbxTokens->GetSelection()) - 1);
}

void frmMain::OnNextUntranslated() {
    ClickFound(FindUntranslated(program_, lbxTokens->Entries(), lbxTokens->Selected(),
                                CurrentSelection()));
}

void frmMain::OnFind() {
    wxTextEntryDialog dialog(this, "Find in the tokens and their English values:", "Find",
                             ToWx(soughtText_));
    SetProgramIcon(dialog);
    if (dialog.ShowModal() != wxID_OK || dialog.GetValue().empty())
        return;
    soughtText_ = FromWx(dialog.GetValue());
    OnFindNext();
}

void frmMain::OnFindNext() {
    if (soughtText_.empty())
        return OnFind();
    ClickFound(FindEntry(lbxTokens->Entries(), lbxTokens->Selected(), soughtText_));
}

void frmMain::ClickFound(std::optional<std::size_t> index) {
    // A click on the selected token would replace the typed text.
    if (!index || index == lbxTokens->Selected())
        return wxBell();
    lbxTokens->Click(*index);
}

Selection frmMain::CurrentSelection() const {
    return {program_.CurrentApplication, lstBases->SelectedText(), lstLanguages->SelectedText()};
}

std::filesystem::path frmMain::ReferenceMapFile() const {
    return GetReferenceMapFilePath(program_.config, CurrentSelection());
}

}  // namespace cvlang
