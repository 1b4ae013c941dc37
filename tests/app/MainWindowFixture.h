// The main window on a small installation of real files.
#pragma once

#include <wx/listctrl.h>
#include <wx/weakref.h>

#include "app/frmMain.h"
#include "support/FakeProgram.h"
#include "support/WindowScript.h"
#include "widgets/MessageBoxes.h"

namespace cvlang {

using List = std::vector<std::u16string>;

// The labels of the lists and of the text.
inline constexpr const char* kApplicationList = "Current Application:";
inline constexpr const char* kBases = "Application Base:";
inline constexpr const char* kLanguages = "Target Language:";
inline constexpr const char* kTokens = "Tokens:";
inline constexpr const char* kDetails = "Original Token:";
inline constexpr const char* kTranslation = "Translated Token Value:";

inline constexpr long kInformation = wxOK | wxICON_INFORMATION;
inline constexpr long kCritical = wxOK | wxICON_ERROR;

inline const std::u16string kHello = u"[CV_TXT-HELLO]: Hello: you";
inline const std::u16string kBye = u"[CV_TXT-BYE]: Goodbye";
inline const std::u16string kNew = u"[CV_TXT-NEW]";

inline constexpr const char* kReferenceMap = "WebMail-default.net-tokens.map";
inline constexpr const char* kFrenchMap = "WebMail-default.net-tokens-fr.map";
inline constexpr const char* kLanguageList = "WebMail-default.net-lang.txt";

class MainWindow : public testing::Test {
  protected:
    MainWindow() {
        PutFile("NETWebMail/default/lang/SYS/Login.aspx", "[CV_TXT-HELLO]\r\n");
        PutFile("NETWebMail/zephra", "");
        PutFile(kReferenceMap,
                Utf16Bytes(u"\t\t\t[CV_TXT-HELLO]\tHello: you\r\n\t\t\t[CV_TXT-BYE]\tGoodbye\r\n"
                           u"\t\t\t[CV_TXT-NEW]\t\r\n"));
        PutFile(kFrenchMap, Utf16Bytes(u"[CV_TXT-HELLO]\tBonjour\r\n[CV_TXT-BYE]\tAu revoir\r\n"));
    }
    ~MainWindow() override {
        if (window_)
            window_->Destroy();
        Settle();
    }

    /// The window, opened when it is first asked for.
    frmMain& Window(const MakerServices& services = {}) {
        if (!window_) {
            window_ = new frmMain(program_, services);
            window_->Show();
            Settle();
        }
        return *window_;
    }

    std::u16string Translation() { return Find<TextBox>(Window(), kTranslation).Text(); }
    std::u16string Selected(const char* list) {
        return Find<SelectionList>(Window(), list).SelectedText();
    }
    /// The headings of the details, and all their rows.
    wxString Details() {
        const auto& list = Find<wxListCtrl>(Window(), kDetails);
        wxString text;
        for (const int column : {0, 1}) {
            wxListItem heading;
            heading.SetMask(wxLIST_MASK_TEXT);
            list.GetColumn(column, heading);
            text += heading.GetText() + "|";
            for (int row = 0; row < list.GetItemCount(); ++row)
                text += list.GetItemText(row, column) + "|";
        }
        return text;
    }
    const List& Entries(const char* list) { return Find<SelectionList>(Window(), list).Entries(); }

    FakeProgram fake_;
    MessageBoxes boxes_;
    Program program_{fake_.config, fake_.logs, boxes_};
    WindowScript script_;
    wxWeakRef<frmMain> window_;
};

}  // namespace cvlang
