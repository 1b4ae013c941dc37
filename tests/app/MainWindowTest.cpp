#include <wx/clipbrd.h>
#include <wx/display.h>
#include <wx/gauge.h>
#include <wx/textdlg.h>

#include <cstdlib>
#include <set>

#include "app/MainWindowFixture.h"
#include "widgets/Text.h"

namespace cvlang::tests {

TEST_F(MainWindow, OpensWithNoLanguageAndListsTokensWhenOneIsClicked) {
    EXPECT_EQ(Entries(kApplicationList), List({u"WebMail", u"WebAdmin"}));
    EXPECT_EQ(Entries(kLanguages).size(), 13U);
    EXPECT_EQ(Entries(kTokens), List());
    EXPECT_NE(Find<wxWindow>(Window(), "Label7").GetLabel().Find("modificatons"), wxNOT_FOUND);

    Pick(Window(), kLanguages, u"French");
    EXPECT_EQ(Entries(kTokens), List({kHello, kBye, kNew}));
    EXPECT_EQ(Translation(), u"Bonjour");
    EXPECT_EQ(Details(), "Token Name|[CV_TXT-HELLO]|English Value|Hello|");
    Pick(Window(), kTokens, kNew);
    EXPECT_EQ(Details(), "Token Name|[CV_TXT-NEW]|English Value||");
    EXPECT_EQ(Translation(), u"");
    script_.ExpectBox("Language Generation",
                      "Translated web pages were generated sucessfully for French language.",
                      kInformation);
    Press(Window(), "Apply Translation");
    EXPECT_EQ(FileBytes("NETWebMail/default/lang/fr/Login.aspx"),
              "\xEF\xBB\xBF"
              "Bonjour");

    // Another base forgets the language; the tokens stay until one is clicked.
    Pick(Window(), kBases, u"zephra.net");
    EXPECT_EQ(Selected(kLanguages), u"");
    EXPECT_EQ(Entries(kTokens).size(), 3U);
    Pick(Window(), kLanguages, u"French");
    EXPECT_EQ(Entries(kTokens), List());

    PutFile("WebAdmin-zephra.net-tokens.map", FileBytes(kReferenceMap));
    Pick(Window(), kApplicationList, u"WebAdmin");
    EXPECT_EQ(Entries(kTokens).size(), 3U);
    EXPECT_EQ(FileBytes("WebAdmin-WebAdmin-lang.txt").substr(0, 12), "Chinese\tzh\r\n");
    Press(Window(), "Quit");
    EXPECT_EQ(window_, nullptr);
}

TEST_F(MainWindow, FitsTheScreen) {
    EXPECT_TRUE(wxDisplay(&Window()).GetClientArea().Contains(Window().GetScreenRect()));
    if (wxPlatformInfo::Get().GetPortId() != wxPORT_GTK)
        return;  // Wine shows the screen's pixels to no program
    for (const char* button :
         {"Update File", "Add Token...", "Remove Token...", "Apply Translation", "Quit"})
        EXPECT_NEAR(ShareOf(Find<wxButton>(Window(), button), IsDark), 0.1, 0.09) << button;
}

TEST_F(MainWindow, SavesWhatIsTypedAndNothingElse) {
    const std::u16string kept = u"[CV_TXT-HELLO]\t" + std::u16string(70000, u'x') + u"\r\n";
    PutFile(kFrenchMap, Utf16Bytes(kept));
    Pick(Window(), kLanguages, u"French");
    auto& box = Find<TextBox>(Window(), kTranslation);
    EXPECT_FALSE(box.IsEditable());  // a box of GTK does not hold so much
    Press(Window(), "Update File");
    EXPECT_EQ(FileBytes(kFrenchMap), Utf16Bytes(kept));
    // Right to left, beyond the first plane, half a pair.
    for (const std::u16string value : {u"\u05E9\u05DC\u05D5\u05DD \u65E5\u672C\uD55C",
                                       u"\U0001F600 \u0391\u03B8", u"a\xD800z"}) {
        Pick(Window(), kTokens, kBye);
        EXPECT_TRUE(box.IsEditable());
        Type(Window(), kTranslation, value);
        for (int i = 0; i < 2; ++i) {  // as typed, then as loaded
            Press(Window(), "Update File");
            std::u16string saved = kept;
            saved.append(u"[CV_TXT-BYE]\t").append(value).append(u"\r\n");
            EXPECT_EQ(FileBytes(kFrenchMap), Utf16Bytes(saved));
            for (const auto& token : {kNew, kBye})
                Pick(Window(), kTokens, token);
        }
    }
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
    std::string ClickAt(const char* control) {
        const wxPoint place = Find<wxWindow>(Window(), control).GetScreenPosition();
        return wxString::Format("mousemove %d %d click 1 ", place.x + 20, place.y + 12)
            .utf8_string();
    }
};

TEST_F(MainWindowInput, HasNoEffectWhileTheProgramAsksForPatience) {
    const std::string quit = ClickAt("Quit") + "key Return";
    program_.progress->Begin();
    auto& wait = Find<wxDialog>(Window(), "Please Wait ...");
    program_.progress->Expect([] { return 4; });
    for (const int done : {1, 2, 3}) {
        wxMilliSleep(110);
        program_.progress->Step();
        const auto isFilled = [](int red, int blue) { return blue > red + 60; };
        EXPECT_NEAR(ShareOf(Find<wxGauge>(wait, "gauge"), isFilled), done / 4.0, 0.15);
    }
    for (const auto& [name, text] :
         {std::pair{"lblStatusMessage", "Corvane setup is now processing your request."},
          {"lblTimeMessage", "This process may take several minutes. Please wait..."}}) {
        EXPECT_EQ(Find<wxWindow>(wait, name).GetLabel(), text);
        EXPECT_GT(ShareOf(Find<wxWindow>(wait, name), IsDark), 0.02);
    }
    Input("key Escape key alt+F4 " + quit, 0);
    EXPECT_EQ(std::tuple(wait.IsShown(), wxIsBusy(), Window().IsEnabled()),
              std::tuple(true, true, false));
    EXPECT_EQ(std::system(("xdotool " + quit).c_str()), 0);  // not processed before the end
    program_.progress->End();
    Settle(100);
    EXPECT_EQ(wxWindow::FindWindowByName("frmWait"), nullptr);
    EXPECT_EQ(std::tuple(Window().IsShown(), wxIsBusy(), Window().IsEnabled()),
              std::tuple(true, false, true));
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

TEST_F(MainWindowInput, ClicksTheSelectedEntryAndReachesAllControlsByTab) {
    Input(ClickAt(kApplicationList));  // is selected since the start
    EXPECT_EQ(Entries(kTokens).size(), 3U);
    const auto click = [this](const char* list, const std::u16string& published) {
        PutFile("WebMail-default.net-tokens-zh.map",
                Utf16Bytes(u"[CV_TXT-HELLO]\t" + published + u"\r\n"));
        Input(ClickAt(list));
        return Translation();
    };
    EXPECT_EQ(click(kLanguages, u"1"), u"1");
    EXPECT_EQ(click(kLanguages, u"2"), u"2");
    EXPECT_EQ(click(kTokens, u"3"), u"3");
    Type(Window(), kTranslation, u"typed");
    EXPECT_EQ(click(kTokens, u"4"), u"typed");
    Press(Window(), "Update File");
    EXPECT_EQ(click(kTokens, u"5"), u"5");

    Input(ClickAt(kApplicationList));  // leaves no language selected
    wxString names;
    for (int i = 0; i < 11; ++i) {
        names += wxWindow::FindFocus()->GetName() + " ";
        Input("key Tab");
    }
    EXPECT_EQ(names,
              "lstApplication lstBases lstLanguages lbxTokens lvwTokenDetails txtTranslation "
              "cmdUpdate cmdAddToken cmdRemoveToken cmdApply cmdQuit ");
    EXPECT_EQ(Selected(kLanguages), u"");

    Find<wxWindow>(Window(), kLanguages).SetFocus();
    Settle();
    // The click may be the one that brings back the window.
    wxFrame other(nullptr, wxID_ANY, "other", {0, 0}, {1, 1});
    other.Show();
    Settle(100);
    EXPECT_FALSE(Window().IsActive());
    Input(ClickAt(kLanguages), 500);
    EXPECT_EQ(Selected(kLanguages), u"Chinese");
    Input(ClickAt(kApplicationList));

    Find<wxWindow>(Window(), kLanguages).SetFocus();
    Settle();
    Input("key Down");  // an arrow key does click, and so does a letter
    EXPECT_EQ(Translation(), u"5");
    Input("key f");
    EXPECT_EQ(Selected(kLanguages), u"French");
    EXPECT_EQ(Translation(), u"Bonjour");

    // A list that was scrolled shows its first entries after it is filled again.
    Input("key End " + ClickAt(kApplicationList));
    Input(ClickAt(kLanguages));
    EXPECT_EQ(Selected(kLanguages), u"Chinese");
    std::u16string rows;
    for (int row = 0; row < 60; ++row)
        rows += u"\t\t\t[CV_TXT-" + std::u16string(300, u'M') + u"]\r\n";
    PutFile(kReferenceMap, Utf16Bytes(rows));
    Pick(Window(), kLanguages, u"French");
    const auto& tokens = Find<SelectionList>(Window(), kTokens);
    const double atStart = ShareOf(tokens, IsDark);
    Input(ClickAt(kTokens) + "click --repeat 30 7 click --repeat 30 5 mousemove 0 0");
    EXPECT_NEAR(ShareOf(tokens, IsDark), atStart, 0.05);
    Pick(Window(), kLanguages, u"German");
    EXPECT_NEAR(ShareOf(tokens, IsDark), atStart, 0.01);
}

TEST_F(MainWindowInput, SaveFindMoveOnAndPaste) {
    Pick(Window(), kLanguages, u"French");
    auto& box = Find<TextBox>(Window(), kTranslation);
    box.SetFocus();
    box.SetInsertionPointEnd();
    for (const char* wanted : {"o", "new"}) {
        script_.ExpectDialog("Find", [wanted](wxDialog& dialog) {
            dynamic_cast<wxTextEntryDialog&>(dialog).SetValue(wanted);
            dialog.EndModal(wxID_OK);
        });
    }
    const std::tuple<const char*, std::u16string, std::u16string> steps[] = {
        {"type ab", kHello, u"Bonjourab"},
        {"key ctrl+z", kHello, u"Bonjour"},
        {"key ctrl+y", kHello, u"Bonjourab"},
        {"key ctrl+z ctrl+shift+z", kHello, u"Bonjourab"},
        {"key ctrl+z c ctrl+s ctrl+Down ctrl+Up", kHello, u"Bonjourc"},
        {"key End d ctrl+Return ctrl+z", kBye, u"Au revoir"},  // there is nothing to undo
        {"key ctrl+Up", kHello, u"Bonjourcd"},
        {"key ctrl+shift+Down", kNew, u""},
        {"key ctrl+Down", kNew, u""},
        {"key F3", kHello, u"Bonjourcd"},  // asks what to find
        {"key F3", kBye, u"Au revoir"},
        {"key ctrl+f", kNew, u""},
        {"type x", kNew, u"x"},
        {"key ctrl+shift+Down", kNew, u"x"}};  // finds the same token: nothing is loaded
    for (const auto& [input, token, text] : steps) {
        Input(input);
        EXPECT_EQ(Selected(kTokens), token) << input;
        EXPECT_EQ(Translation(), text) << input;
    }

    ASSERT_TRUE(wxTheClipboard->Open());
    wxTheClipboard->SetData(new wxTextDataObject("a\r\nb\tc\nd\re"));
    wxTheClipboard->Close();
    for (const bool isLocked : {false, true}) {
        box.SetEditable(!isLocked);
        Input("key ctrl+v");
        EXPECT_EQ(Translation(), u"xa b c d e");
    }
    for (const wxString& dropped : {wxString("\tf"), wxString('x', 70000)}) {  // is too long
        box.WriteText(dropped);
        EXPECT_EQ(Translation(), u"xa b c d e f");
    }
}

}  // namespace cvlang::tests
