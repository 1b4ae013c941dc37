#include <wx/clipbrd.h>
#include <wx/display.h>
#include <wx/gauge.h>
#include <wx/listctrl.h>
#include <wx/textdlg.h>

#include <cstdlib>
#include <set>

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
    if (wxPlatformInfo::Get().GetPortId() != wxPORT_GTK)
        return;  // Wine shows the screen's pixels to no program
    for (const char* button :
         {"Update File", "Add Token...", "Remove Token...", "Apply Translation", "Quit"}) {
        const wxImage picture = ScreenPixels(Find<wxButton>(Window(), button).GetScreenRect());
        EXPECT_NEAR(Share(picture, IsDark), 0.1, 0.09) << button;
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
        EXPECT_EQ(Find<TextBox>(Window(), kTranslation).IsEditable(), value.size() < 100);
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
    apply("French");
    EXPECT_EQ(FileBytes("NETWebMail/default/lang/fr/Login.aspx"),
              "\xEF\xBB\xBF" + std::string("Bonjour"));
    Pick(Window(), kBases, u"zephra.net");  // has no pages, and no language is selected
    apply("");
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

    fake_.registry.fails = true;
    script_.ExpectBox("CVLangTranslator", "The registry is gone", kCritical);
    Press(Window(), "Update File");
}

/// Real input, which xdotool sends to the display.
class MainWindowInput : public MainWindow {
  protected:
    void SetUp() override {
        if (wxPlatformInfo::Get().GetPortId() != wxPORT_GTK)
            GTEST_SKIP() << "simulated input does not arrive here";
        Window().Raise();
        Settle(100);
    }

    static void Input(const std::string& action, int milliseconds = 100) {
        EXPECT_EQ(std::system(("xdotool " + action).c_str()), 0) << action;
        Settle(milliseconds);
    }
    static std::string ClickAt(const wxPoint& place) {
        return "mousemove " + std::to_string(place.x) + " " + std::to_string(place.y) + " click 1";
    }
    void ClickFirstOf(const char* list) {
        Input(ClickAt(Find<wxWindow>(Window(), list).GetScreenPosition() + wxPoint(20, 12)));
    }
};

TEST_F(MainWindowInput, HasNoEffectWhileTheProgramAsksForPatience) {
    const wxRect quit = Find<wxWindow>(Window(), "Quit").GetScreenRect();
    program_.progress->Begin();
    auto& wait = Find<wxDialog>(Window(), "Please Wait ...");
    program_.progress->Expect([] { return 4; });
    for (const int done : {1, 2, 3}) {
        wxMilliSleep(110);
        program_.progress->Step();
        const wxRect bar = Find<wxGauge>(wait, "gauge").GetScreenRect();
        const auto isFilled = [](int red, int blue) { return blue > red + 60; };
        const wxRect middle(bar.x, bar.y + bar.height / 2, bar.width, 1);
        EXPECT_NEAR(Share(ScreenPixels(middle), isFilled), done / 4.0, 0.1);
    }
    const wxRect label = Find<wxWindow>(wait, "lblStatusMessage").GetScreenRect();
    EXPECT_GT(Share(ScreenPixels(label), IsDark), 0.02);
    Input("key Escape key alt+F4 " + ClickAt(quit.GetPosition() + wxPoint(9, 9)) + " key Return",
          0);
    EXPECT_TRUE(wait.IsShown() && wxIsBusy() && !Window().IsEnabled());
    const std::string late =
        "xdotool " + ClickAt(quit.GetPosition() + wxPoint(9, 9)) + " key Return";
    EXPECT_EQ(std::system(late.c_str()), 0);
    program_.progress->End();
    Settle(100);
    EXPECT_TRUE(!wxIsBusy() && Window().IsEnabled() && !wxWindow::FindWindowByName("frmWait"));
    EXPECT_TRUE(Window().IsShown());
}

TEST_F(MainWindowInput, AnswersBoxesWithIcons) {
    std::set<std::string> pictures;
    for (const auto icon : {MessageIcon::None, MessageIcon::Critical, MessageIcon::Question,
                            MessageIcon::Exclamation, MessageIcon::Information}) {
        const bool agrees = icon == MessageIcon::Question;
        script_.ExpectDialog("Icon", [&](wxDialog& dialog) {
            const wxImage picture = ScreenPixels({dialog.GetScreenPosition(), wxSize(60, 90)});
            pictures.insert({reinterpret_cast<char*>(picture.GetData()), 60UL * 90 * 3});
            Input(agrees ? "key Return" : "key Escape");
        });
        EXPECT_EQ(boxes_.Show({u"Text", u"Icon", MessageButtons::YesNo, icon}),
                  agrees ? MessageAnswer::Yes : MessageAnswer::No);
    }
    EXPECT_EQ(pictures.size(), 5U);
}

TEST_F(MainWindowInput, ClicksTheSelectedEntryAndFindsOneByItsLetter) {
    ClickFirstOf(kApplicationList);  // is selected since the start
    EXPECT_EQ(Entries(kTokens).size(), 3U);
    const auto publish = [](const std::u16string& value) {
        PutFile("WebMail-default.net-tokens-zh.map",
                Utf16Bytes(u"[CV_TXT-HELLO]\t" + value + u"\r\n"));
    };
    const std::pair<const char*, std::u16string> clicks[] = {
        {kLanguages, u"1"}, {kLanguages, u"2"}, {kTokens, u"3"}};
    for (const auto& [list, value] : clicks) {
        publish(value);
        ClickFirstOf(list);
        EXPECT_EQ(Translation(), value);
    }
    Type(Window(), kTranslation, u"not saved");
    ClickFirstOf(kTokens);
    EXPECT_EQ(Translation(), u"not saved");
    Press(Window(), "Update File");
    publish(u"4");
    ClickFirstOf(kTokens);
    EXPECT_EQ(Translation(), u"4");

    Find<wxWindow>(Window(), kLanguages).SetFocus();
    Input("key f");
    EXPECT_EQ(Find<SelectionList>(Window(), kLanguages).SelectedText(), u"French");
    EXPECT_EQ(Translation(), u"Bonjour");
}

TEST_F(MainWindowInput, WalkThroughAllControlsWithoutClickingAnything) {
    Find<wxWindow>(Window(), kApplicationList).SetFocus();
    wxString names;
    for (int i = 0; i < 11; ++i) {
        names += wxWindow::FindFocus()->GetName() + " ";
        Input("key Tab");
    }
    EXPECT_EQ(names,
              "lstApplication lstBases lstLanguages lbxTokens lvwTokenDetails txtTranslation "
              "cmdUpdate cmdAddToken cmdRemoveToken cmdApply cmdQuit ");
    EXPECT_EQ(Find<SelectionList>(Window(), kLanguages).SelectedText(), u"");

    Find<wxWindow>(Window(), kLanguages).SetFocus();
    Settle();
    Input("key Down");  // an arrow key does click
    EXPECT_EQ(Entries(kTokens).size(), 3U);
}

TEST_F(MainWindowInput, SaveFindAndMoveOn) {
    Pick(Window(), kLanguages, u"French");
    Find<wxWindow>(Window(), kTranslation).SetFocus();
    Find<TextBox>(Window(), kTranslation).SetInsertionPointEnd();
    Input("type ab");
    EXPECT_EQ(Translation(), u"Bonjourab");
    for (const char* redo : {"key ctrl+y", "key ctrl+shift+z"}) {
        Input("key ctrl+z");
        EXPECT_EQ(Translation(), u"Bonjour");
        Input(redo);
        EXPECT_EQ(Translation(), u"Bonjourab");
    }
    Input("key ctrl+z c ctrl+s");
    EXPECT_EQ(FileBytes(kFrenchMap),
              Utf16Bytes(u"[CV_TXT-HELLO]\tBonjourc\r\n[CV_TXT-BYE]\tAu revoir\r\n"));
    Input("key d ctrl+Return ctrl+z");  // there is nothing to undo in the next token
    EXPECT_EQ(Translation(), u"Au revoir");
    EXPECT_EQ(FileBytes(kFrenchMap),
              Utf16Bytes(u"[CV_TXT-HELLO]\tBonjourcd\r\n[CV_TXT-BYE]\tAu revoir\r\n"));
    for (const char* wanted : {"O", "BYE"}) {
        script_.ExpectDialog("Find", [wanted](wxDialog& dialog) {
            dynamic_cast<wxTextEntryDialog&>(dialog).SetValue(wanted);
            dialog.EndModal(wxID_OK);
        });
    }
    const std::pair<const char*, std::u16string> moves[] = {
        {"ctrl+Up", kHello}, {"ctrl+shift+Down", kNew},
        {"ctrl+Down", kNew}, {"ctrl+s", kNew},  // an empty text is no translation
        {"F3", kHello},                         // asks what to find
        {"F3", kBye},        {"ctrl+Up", kHello},
        {"ctrl+f", kBye},    {"ctrl+shift+Down", kNew}};
    EXPECT_EQ(Token(), kBye);
    for (const auto& [key, token] : moves) {
        Input(std::string("key ") + key);
        EXPECT_EQ(Token(), token) << key;
    }
    Type(Window(), kTranslation, u"not saved");
    Input("key ctrl+shift+Down");  // finds the same token: nothing is loaded
    EXPECT_EQ(Translation(), u"not saved");
}

TEST_F(MainWindowInput, PasteOnOneLine) {
    Pick(Window(), kLanguages, u"French");
    Pick(Window(), kTokens, kNew);
    Find<wxWindow>(Window(), kTranslation).SetFocus();
    ASSERT_TRUE(wxTheClipboard->Open());
    wxTheClipboard->SetData(new wxTextDataObject("a\r\nb\tc\nd"));
    wxTheClipboard->Close();
    Input("key ctrl+v");
    EXPECT_EQ(Translation(), u"a b c d");
    Find<TextBox>(Window(), kTranslation).WriteText("\te");  // as if it were dropped
    EXPECT_EQ(Translation(), u"a b c d e");
    Find<TextBox>(Window(), kTranslation).WriteText(wxString('x', 70000));  // is too long
    EXPECT_EQ(Translation(), u"a b c d e");
}

}  // namespace
}  // namespace cvlang
