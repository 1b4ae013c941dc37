#include <wx/clipbrd.h>
#include <wx/display.h>
#include <wx/gauge.h>
#include <wx/listctrl.h>
#include <wx/textdlg.h>
#include <wx/uiaction.h>

#include "app/MainWindowFixture.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

TEST_F(MainWindow, OpensWithNoLanguageAndListsTokensWhenOneIsClicked) {
    EXPECT_EQ(Entries(kApplicationList), List({u"WebMail", u"WebAdmin"}));
    EXPECT_EQ(Entries(kBases), List({u"default.net", u"zephra.net"}));
    EXPECT_EQ(Entries(kLanguages).size(), 13U);
    EXPECT_TRUE(Entries(kTokens).empty());

    Pick(Window(), kLanguages, u"French");
    EXPECT_EQ(Entries(kTokens), List({kHello, kBye, kNew}));
    EXPECT_EQ(Translation(), u"Bonjour");
    const auto& details = Find<wxListCtrl>(Window(), kDetails);
    EXPECT_EQ(details.GetItemText(0, 0) + "|" + details.GetItemText(0, 1), "[CV_TXT-HELLO]|Hello");

    Pick(Window(), kTokens, kNew);
    EXPECT_EQ(details.GetItemText(0, 0) + "|" + details.GetItemText(0, 1), "[CV_TXT-NEW]|");
    EXPECT_EQ(Translation(), u"");

    // Another base forgets the language; the tokens stay until one is clicked.
    Pick(Window(), kBases, u"zephra.net");
    EXPECT_EQ(Find<SelectionList>(Window(), kLanguages).SelectedText(), u"");
    EXPECT_EQ(Entries(kTokens).size(), 3U);
    Pick(Window(), kLanguages, u"French");
    EXPECT_TRUE(Entries(kTokens).empty());

    Pick(Window(), kApplicationList, u"WebAdmin");
    EXPECT_EQ(program_.CurrentApplication, u"WebAdmin");
    EXPECT_EQ(FileBytes("WebAdmin-WebAdmin-lang.txt").substr(0, 12), "Chinese\tzh\r\n");
}

TEST_F(MainWindow, FitsTheScreen) {
    EXPECT_TRUE(wxDisplay(&Window()).GetClientArea().Contains(Window().GetScreenRect()));
    for (const char* button :
         {"Update File", "Add Token...", "Remove Token...", "Apply Translation", "Quit"}) {
        const wxImage picture = ScreenPixels(Find<wxButton>(Window(), button).GetScreenRect());
        EXPECT_GT(ShareOfDark(picture), 0.01) << button;
        EXPECT_LT(ShareOfDark(picture), 0.2) << button;
    }
}

TEST_F(MainWindow, SavesWhatIsTypedAndNothingElse) {
    // Right to left, beyond the first plane, half a pair, and more than a box of GTK holds.
    const std::u16string values[] = {u"\u05E9\u05DC\u05D5\u05DD \u65E5\u672C\uD55C",
                                     u"\U0001F600 \u0391\u03B8", u"a\xD800z",
                                     std::u16string(70000, u'x')};
    Pick(Window(), kLanguages, u"French");
    for (const std::u16string& value : values) {
        const std::string bytes =
            Utf16Bytes(u"[CV_TXT-HELLO]\t" + value + u"\r\n[CV_TXT-BYE]\tAu revoir\r\n");
        PutFile(kFrenchMap, bytes);
        Pick(Window(), kTokens, kBye);
        Pick(Window(), kTokens, kHello);
        Press(Window(), "Update File");
        EXPECT_EQ(FileBytes(kFrenchMap), bytes);
        if (value.size() < 100) {
            Pick(Window(), kTokens, kNew);
            Type(Window(), kTranslation, value);
            Press(Window(), "Update File");
            const std::string added = Utf16Bytes(u"[CV_TXT-NEW]\t" + value + u"\r\n").substr(2);
            EXPECT_EQ(FileBytes(kFrenchMap), bytes + added);
        }
    }
}

TEST_F(MainWindow, AppliesATranslationAndSaysSoWhateverHappened) {
    const auto apply = [this](const wxString& language) {
        script_.ExpectBox(
            "Language Generation",
            "Translated web pages were generated sucessfully for " + language + " language.",
            kInformation);
        Press(Window(), "Apply Translation");
        EXPECT_EQ(FileBytes("LANGUAGES.TAB"), Utf16Bytes(u"fr\tFrench\r\n"));
    };
    Pick(Window(), kLanguages, u"French");
    for (int times = 0; times < 2; ++times)
        apply("French");
    EXPECT_EQ(FileBytes("NETWebMail/default/lang/fr/Login.aspx"),
              "\xEF\xBB\xBF" + std::string("Bonjour"));
    Pick(Window(), kBases, u"zephra.net");  // has no pages, and no language is selected
    apply("");
}

TEST_F(MainWindow, CannotBeUsedWhileItAsksForPatience) {
    Window();
    program_.progress->Begin();
    auto& wait = Find<wxDialog>(Window(), "Please Wait ...");
    EXPECT_TRUE(wait.IsShown() && wxIsBusy() && !Window().IsEnabled());
    program_.progress->Expect([] { return 4; });
    wxMilliSleep(60);
    program_.progress->Step();
    EXPECT_EQ(Find<wxGauge>(wait, "gauge").GetValue(), 1);
    program_.progress->End();
    Settle();
    EXPECT_TRUE(!wxIsBusy() && Window().IsEnabled() && !wxWindow::FindWindowByName("frmWait"));
}

TEST_F(MainWindow, WorksWithoutAnyBase) {
    std::filesystem::remove_all("NETWebMail");
    script_.ExpectBox("Setup Issue", "Error: No web applications wewre detected", kCritical);
    EXPECT_TRUE(Entries(kBases).empty());
    EXPECT_TRUE(Window().IsShown());
    Press(Window(), "Remove Token...");
    script_.ExpectBox("Help About..", "Corvane Language Translation Utility (Version 3.0)",
                      kInformation);
    Choose(Window(), "Help", "About..");
    Press(Window(), "Update File");
    EXPECT_EQ(FileBytes("WebMail--tokens-.map"), Utf16Bytes(u"\t\r\n"));
}

TEST_F(MainWindow, LivesOnAfterAnUnexpectedError) {
    fake_.registry.fails = true;
    for (int i = 0; i < 2; ++i)
        script_.ExpectBox("CVLangTranslator", "The registry is gone", kCritical);
    Press(Window(), "Update File");
}

class MainWindowKeys : public MainWindow {
  protected:
    void SetUp() override {
        if (wxPlatformInfo::Get().GetPortId() != wxPORT_GTK)
            GTEST_SKIP() << "simulated keys do not arrive here";
        Window().Raise();
        Settle();
    }

    /// A key goes to whatever has the focus.
    static void Key(int code, int modifiers = wxMOD_NONE) {
        wxUIActionSimulator().Char(code, modifiers);
        WaitForKeys();
    }
    static void WaitForKeys() {
        for (int i = 0; i < 10; ++i) {
            wxMilliSleep(10);
            Settle();
        }
    }
};

TEST_F(MainWindowKeys, WalkThroughAllControlsWithoutClickingAnything) {
    Find<wxWindow>(Window(), kApplicationList).SetFocus();
    wxString names;
    for (int i = 0; i < 11; ++i) {
        names += wxWindow::FindFocus()->GetName() + " ";
        Key(WXK_TAB);
    }
    EXPECT_EQ(names,
              "lstApplication lstBases lstLanguages lbxTokens lvwTokenDetails txtTranslation "
              "cmdUpdate cmdAddToken cmdRemoveToken cmdApply cmdQuit ");
    EXPECT_EQ(Find<SelectionList>(Window(), kLanguages).SelectedText(), u"");

    Find<wxWindow>(Window(), kLanguages).SetFocus();
    Key(WXK_DOWN);  // an arrow key does click
    EXPECT_NE(Find<SelectionList>(Window(), kLanguages).SelectedText(), u"");
    EXPECT_EQ(Entries(kTokens).size(), 3U);
}

TEST_F(MainWindowKeys, SaveFindAndMoveOn) {
    Pick(Window(), kLanguages, u"French");
    Find<wxWindow>(Window(), kTranslation).SetFocus();
    Find<TextBox>(Window(), kTranslation).SetInsertionPointEnd();
    wxUIActionSimulator().Text("ab");
    WaitForKeys();
    EXPECT_EQ(Translation(), u"Bonjourab");
    Key('Z', wxMOD_CONTROL);
    EXPECT_EQ(Translation(), u"Bonjour");
    Key('C');
    Key('S', wxMOD_CONTROL);
    EXPECT_EQ(FileBytes(kFrenchMap),
              Utf16Bytes(u"[CV_TXT-HELLO]\tBonjourc\r\n[CV_TXT-BYE]\tAu revoir\r\n"));
    Key('D');
    Key(WXK_RETURN, wxMOD_CONTROL);
    EXPECT_EQ(FileBytes(kFrenchMap),
              Utf16Bytes(u"[CV_TXT-HELLO]\tBonjourcd\r\n[CV_TXT-BYE]\tAu revoir\r\n"));
    script_.ExpectDialog("Find", [](wxDialog& dialog) {
        dynamic_cast<wxTextEntryDialog&>(dialog).SetValue("O");
        dialog.EndModal(wxID_OK);
    });
    const std::tuple<int, int, std::u16string> moves[] = {
        {WXK_UP, wxMOD_CONTROL, kHello},
        {WXK_DOWN, wxMOD_CONTROL | wxMOD_SHIFT, kNew},
        {WXK_DOWN, wxMOD_CONTROL, kNew},
        {'S', wxMOD_CONTROL, kNew},  // an empty text is no translation
        {'F', wxMOD_CONTROL, kHello},
        {WXK_F3, wxMOD_NONE, kBye},
        {WXK_DOWN, wxMOD_CONTROL | wxMOD_SHIFT, kNew}};
    EXPECT_EQ(Token(), kBye);
    for (const auto& [key, modifiers, token] : moves) {
        Key(key, modifiers);
        EXPECT_EQ(Token(), token);
    }
    Type(Window(), kTranslation, u"not saved");
    Key(WXK_DOWN, wxMOD_CONTROL | wxMOD_SHIFT);  // finds the same token: nothing is loaded
    EXPECT_EQ(Translation(), u"not saved");
}

TEST_F(MainWindowKeys, PasteOnOneLine) {
    Pick(Window(), kLanguages, u"French");
    Pick(Window(), kTokens, kNew);
    Find<wxWindow>(Window(), kTranslation).SetFocus();
    ASSERT_TRUE(wxTheClipboard->Open());
    wxTheClipboard->SetData(new wxTextDataObject("a\r\nb\tc\nd"));
    wxTheClipboard->Close();
    Key('V', wxMOD_CONTROL);
    EXPECT_EQ(Translation(), u"a b c d");
    Find<TextBox>(Window(), kTranslation).WriteText("\te");  // as if it were dropped
    EXPECT_EQ(Translation(), u"a b c d e");
}

}  // namespace
}  // namespace cvlang
