// The layout of the main window: its menu, controls and keys, and what each of them calls.
#include <wx/accel.h>
#include <wx/button.h>
#include <wx/display.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include <tuple>
#include <vector>

#include "app/frmMain.h"
#include "widgets/Layout.h"
#include "widgets/MessageBoxes.h"
#include "widgets/NativeControls.h"
#include "widgets/SelectionList.h"
#include "widgets/TextBox.h"

namespace cvlang {
namespace {

// Deliberate: "modificatons".
constexpr const char* kDescription =
    "This utility allows the customization of different languages for Corvane WebMail and "
    "WebAdmin. "
    "Once you have made changes to a language, you can also submit the modificatons to Corvane so "
    "they can be used by others.";

// Smallest sizes, in device-independent pixels.
constexpr int kListWidth = 190;
constexpr int kListPixels = 72;  // at any resolution: GTK cannot draw lower scroll bars
constexpr int kStartWidth = 800;
constexpr int kStartHeight = 700;
constexpr int kFrameWidth = 2;
constexpr int kTitleHeight = 36;

}  // namespace

void frmMain::CreateMenu() {
    auto* bar = new wxMenuBar;
    wxMenu* menu = nullptr;
    const auto addMenu = [&](const char* caption) { bar->Append(menu = new wxMenu, caption); };
    const auto addEntry = [&](MenuId id, const char* caption, Action action) {
        menu->Append(id, caption);
        OnCommand(id, action);
    };
    addMenu("&File");
    addEntry(mnuFetchDefault, "&Fetch Default Translation", &frmMain::OnFetchDefault);
    addEntry(mnuNewLanguage, "&Add New Language...", &frmMain::OnNewLanguage);
    menu->AppendSeparator();
    addEntry(mnuFileExit, "&Exit", &frmMain::OnQuit);
    addMenu("&Submit");
    addEntry(mnuSubmitActive, "S&ubmit Active Translation", &frmMain::OnSubmitActive);
    addEntry(menuSubmitAll, "Submit &All Translations", &frmMain::OnSubmitAll);
    addMenu("&Help");
    addEntry(mnuHelpAbout, "&About..", &frmMain::OnAbout);
    SetMenuBar(bar);
}

void frmMain::CreateControls() {
    // The panel handles the Tab key and has the system's background.
    panel_ = new wxPanel(this);
    auto* margin = new wxBoxSizer(wxVERTICAL);
    auto* column = new wxBoxSizer(wxVERTICAL);
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(kWindowMargin)));
    Label7 = new wxStaticText(panel_, wxID_ANY, kDescription);
    Label7->SetName("Label7");
    column->Add(Label7, wxSizerFlags().Expand());
    CreateSelection(*column);
    CreateTokens(*column);
    CreateDetails(*column);
    CreateButtons(*column);
    panel_->SetSizer(margin);

    auto* frame = new wxBoxSizer(wxVERTICAL);
    frame->Add(panel_, wxSizerFlags(1).Expand());
    SetSizer(frame);
    Label7->Wrap(FromDIP(3 * kListWidth));
    panel_->Bind(wxEVT_SIZE, &frmMain::OnResized, this);
    // GTK does not know the title bar's height yet. Set with it, the size would make GTK forget the
    // position, and lay the window out in two pixels first.
    const wxSize room = wxDisplay(this).GetClientArea().GetSize() -
                        ClientToWindowSize(FromDIP(wxSize(kFrameWidth, kTitleHeight)));
    // Not a size hint of the sizer: GTK would then use the size of the unwrapped label.
    wxSize least = frame->CalcMin();
    least.DecTo(room);
    SetMinClientSize(least);
    wxSize start = FromDIP(wxSize(kStartWidth, kStartHeight));
    start.DecTo(room);
    SetClientSize(start);
    CentreOnScreen();
}

void frmMain::CreateSelection(wxSizer& column) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto add = [&](const char* labelName, const char* label, const char* name,
                         Action onClick) {
        auto* list = new wxBoxSizer(wxVERTICAL);
        if (!row->IsEmpty())
            row->AddSpacer(FromDIP(kGap));
        row->Add(list, wxSizerFlags(1).Expand());
        return AddList(*list, labelName, label, name, onClick, 0);
    };
    lstApplication =
        add("Label1", "Current Application:", "lstApplication", &frmMain::OnApplicationClick);
    lstBases = add("Label2", "Application Base:", "lstBases", &frmMain::OnBaseClick);
    lstLanguages = add("Label3", "Target Language:", "lstLanguages", &frmMain::LoadTokenList);
    column.Add(row, wxSizerFlags(4).Expand().Border(wxTOP, FromDIP(kGap)));
}

SelectionList* frmMain::AddList(wxSizer& column, const char* labelName, const char* label,
                                const char* name, Action onClick, long style) {
    AddLabel(*panel_, column, labelName, label);
    auto* list = new SelectionList(
        panel_, name, [this, onClick] { Guarded(onClick); }, style);
    SetAccessibleName(*list, label);
    // Without a fixed size, a list would change its size with its entries.
    list->SetMinSize(wxSize(FromDIP(kListWidth), kListPixels));
    return AddToColumn(column, list, 5);
}

void frmMain::CreateTokens(wxSizer& column) {
    lbxTokens =
        AddList(column, "Label6", "Tokens:", "lbxTokens", &frmMain::OnTokenClick, wxLB_HSCROLL);
    lbxTokens->SetRepeatable([this] { return !txtTranslation->IsChanged(); });
    lbxTokens->SetToolTip("Ctrl+Down and Ctrl+Up: next and previous token. Ctrl+F: find a text.");
}

void frmMain::CreateDetails(wxSizer& column) {
    auto* details = new wxStaticBoxSizer(wxVERTICAL, panel_, "Token Details");
    wxStaticBox* Frame1 = details->GetStaticBox();
    Frame1->SetName("Frame1");
    auto* inner = new wxBoxSizer(wxVERTICAL);
    AddLabel(*Frame1, *inner, "Label5", "Original Token:");
    lvwTokenDetails =
        new wxListCtrl(Frame1, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                       wxLC_REPORT | wxLC_SINGLE_SEL, wxDefaultValidator, "lvwTokenDetails");
    lvwTokenDetails->AppendColumn("Token Name");
    lvwTokenDetails->AppendColumn("English Value");
    SetAccessibleName(*lvwTokenDetails, "Original Token:");
    // The heading, a row and a scroll bar.
    lvwTokenDetails->SetMinSize(wxSize(-1, 7 * GetCharHeight() / 2));
    AddToColumn(*inner, lvwTokenDetails);

    AddLabel(*Frame1, *inner, "Label4", "Translated Token Value:");
    txtTranslation = new TextBox(Frame1, "txtTranslation");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(txtTranslation, wxSizerFlags(1).Expand());
    row->AddSpacer(FromDIP(kGap));
    wxButton* cmdUpdate = CreateButton(*Frame1, "Update File", "cmdUpdate", &frmMain::OnUpdate);
    row->Add(cmdUpdate);
    txtTranslation->SetToolTip("Ctrl+S: save. Ctrl+Enter: save and go to the next token.");
    cmdUpdate->SetToolTip("Ctrl+S");
    inner->Add(row, wxSizerFlags().Expand());
    details->Add(inner, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(kGap)));
    column.Add(details, wxSizerFlags().Expand().Border(wxTOP, FromDIP(kGap)));
}

void frmMain::CreateButtons(wxSizer& column) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto add = [&](const char* caption, const char* name, Action onClick) {
        row->Add(CreateButton(*panel_, caption, name, onClick),
                 wxSizerFlags().Border(wxRIGHT, FromDIP(kGap)));
    };
    add("Add Token...", "cmdAddToken", &frmMain::OnAddToken);
    add("Remove Token...", "cmdRemoveToken", &frmMain::OnRemoveToken);
    row->AddStretchSpacer();
    add("Apply Translation", "cmdApply", &frmMain::OnApply);
    row->Add(CreateButton(*panel_, "Quit", "cmdQuit", &frmMain::OnQuit));
    column.Add(row, wxSizerFlags().Expand().Border(wxTOP, FromDIP(kWindowMargin)));
}

wxButton* frmMain::CreateButton(wxWindow& parent, const char* caption, const char* name,
                                Action onClick) {
    auto* button = NamedButton(&parent, wxID_ANY, caption, name);
    button->Bind(wxEVT_BUTTON, [this, onClick](wxCommandEvent&) { Guarded(onClick); });
    return button;
}

// The keys are not in the menu, because the captions are fixed.
void frmMain::CreateKeys() {
    const std::tuple<int, int, Action> keys[] = {
        {wxACCEL_CTRL, 'S', &frmMain::OnUpdate},
        {wxACCEL_CTRL, WXK_RETURN, &frmMain::OnSaveAndNext},
        {wxACCEL_CTRL, WXK_NUMPAD_ENTER, &frmMain::OnSaveAndNext},
        {wxACCEL_CTRL, WXK_DOWN, &frmMain::OnNext},
        {wxACCEL_CTRL, WXK_UP, &frmMain::OnPrevious},
        {wxACCEL_CTRL | wxACCEL_SHIFT, WXK_DOWN, &frmMain::OnNextUntranslated},
        {wxACCEL_CTRL, 'F', &frmMain::OnFind},
        {wxACCEL_NORMAL, WXK_F3, &frmMain::OnFindNext},
    };
    std::vector<wxAcceleratorEntry> entries;
    for (const auto& [modifiers, code, action] : keys) {
        const int id = mnuHelpAbout + 1 + static_cast<int>(entries.size());
        entries.emplace_back(modifiers, code, id);
        OnCommand(id, action);
    }
    SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(entries.size()), entries.data()));
}

void frmMain::OnCommand(int id, Action action) {
    Bind(
        wxEVT_MENU, [this, action](wxCommandEvent&) { Guarded(action); }, id);
}

void frmMain::Guarded(Action action) {
    ShowingErrors(program_.messages, [this, action] { (this->*action)(); });
}

void frmMain::OnResized(wxSizeEvent& event) {
    event.Skip();
    const auto arrange = [this] {
        Label7->SetLabel(kDescription);
        Label7->Wrap(panel_->GetSize().x - 2 * FromDIP(kWindowMargin));
        panel_->Layout();
        FitDetails();
    };
    arrange();
    // Once more: what asks for another size while GTK gives out sizes never gets one, nor do the
    // lists beside it when their entries become wider.
    CallAfter(arrange);
}

/// Each column is as wide as its text. What is left over belongs to the value.
void frmMain::FitDetails() {
    const int width = lvwTokenDetails->GetClientSize().x;
    const int least[] = {width * 2 / 5, width - width * 2 / 5};
    for (const int column : {0, 1}) {
        lvwTokenDetails->SetColumnWidth(column, wxLIST_AUTOSIZE);
        if (lvwTokenDetails->GetColumnWidth(column) < least[column])
            lvwTokenDetails->SetColumnWidth(column, least[column]);
    }
}

}  // namespace cvlang
