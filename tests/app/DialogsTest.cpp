#include "app/MainWindowFixture.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

constexpr long kYesNoCancel = wxYES_NO | wxCANCEL | wxICON_NONE;

class Dialogs : public MainWindow {
  protected:
    void OfferLanguage(const std::u16string& name, const std::u16string& abbreviation,
                       const char* button = "cmdOK") {
        script_.ExpectDialog("frmAddLanguage", [=](wxDialog& dialog) {
            EXPECT_EQ(dialog.GetTitle(), "Add Language: WebMail[default.net]");
            EXPECT_EQ(Find<wxWindow>(dialog, "Label1").GetLabel(), "Enter language name:");
            EXPECT_EQ(Find<wxWindow>(dialog, "Label2").GetLabel(),
                      "Enter abbreviation for language (e.g. EN):");
            EXPECT_EQ(Find<wxWindow>(dialog, "cmdQuit").GetLabel(), "Cancel");
            Type(dialog, "txtLanguage", name);
            Type(dialog, "txtAbbrev", abbreviation);
            Press(dialog, button);
        });
    }
    void AddLanguage() { Choose(Window(), frmMain::mnuNewLanguage); }

    void AskToRemove(const char* button = "cmdAction") {
        script_.ExpectDialog("frmAddToken", [=](wxDialog& dialog) {
            EXPECT_EQ(dialog.GetTitle(), "Remove Token");
            EXPECT_EQ(Find<wxWindow>(dialog, "cmdAction").GetLabel(), "Remove");
            EXPECT_EQ(Find<TextBox>(dialog, "txtTokenName").GetValue(), "[CV_TXT-HELLO]");
            EXPECT_EQ(Find<TextBox>(dialog, "txtTokenValue").GetValue(), "Hello");
            EXPECT_FALSE(Find<TextBox>(dialog, "txtTokenName").IsEditable());
            EXPECT_FALSE(Find<TextBox>(dialog, "txtTokenValue").IsEditable());
            Press(dialog, button);
        });
    }
    void ExpectConfirmation(int answer) {
        script_.ExpectBox("Confirm Removal",
                          "Also remove this token from all translated language files?",
                          kYesNoCancel, answer);
    }
};

TEST_F(Dialogs, ANewLanguageIsListedUnlessItsNameOrAbbreviationIsThereAlready) {
    OfferLanguage(u"Greek", u"el");
    script_.ExpectBox(
        "Error", "Could not load language file " + ToWx(TextFromPath(fake_.folder / kLanguageList)),
        kCritical);
    AddLanguage();
    EXPECT_EQ(FileBytes(kLanguageList), "(no file)");

    PutFile(kLanguageList, "French\tfr\nGerman\tde");
    OfferLanguage(u"french", u"DE");
    script_.ExpectBox("Error", "That language name already exists and cannot be added.", kCritical);
    AddLanguage();
    OfferLanguage(u"Fran\u00E7ais", u"FR");
    script_.ExpectBox("Error", "That language abbreviation already exists and cannot be added.",
                      kCritical);
    AddLanguage();
    OfferLanguage(u"", u"el");
    AddLanguage();
    OfferLanguage(u"Greek", u"el", "cmdQuit");
    AddLanguage();
    EXPECT_EQ(FileBytes(kLanguageList), "French\tfr\nGerman\tde");

    OfferLanguage(u"Fran\u00E7ais", u"");
    AddLanguage();
    EXPECT_EQ(FileBytes(kLanguageList),
              "French\tfr\r\nGerman\tde\r\nFran\xE7"
              "ais\t\r\n");
    EXPECT_EQ(Entries("lstLanguages"), List({u"French", u"German", u"Fran\u00E7ais"}));
}

TEST_F(Dialogs, ATokenIsAddedAtTheEnd) {
    Pick(Window(), "lstLanguages", u"French");
    const std::string before = FileBytes(kReferenceMap);
    for (const char* button : {"cmdCancel", "cmdAction"}) {
        script_.ExpectDialog("frmAddToken", [=](wxDialog& dialog) {
            EXPECT_EQ(dialog.GetTitle(), "Add New Token");
            EXPECT_EQ(Find<wxWindow>(dialog, "Label1").GetLabel(), "Token Name:");
            EXPECT_EQ(Find<wxWindow>(dialog, "Label3").GetLabel(), "English Value:");
            EXPECT_EQ(Find<wxWindow>(dialog, "cmdAction").GetLabel(), "Add");
            EXPECT_EQ(Find<wxWindow>(dialog, "cmdCancel").GetLabel(), "Cancel");
            Type(dialog, "txtTokenName", u" MORE");
            Type(dialog, "txtTokenValue", u"More \u20AC");
            Press(dialog, button);
        });
        Pick(Window(), "lbxTokens", u"[CV_TXT-BYE]: Goodbye");
        Press(Window(), "cmdAddToken");
        EXPECT_EQ(Token(), u"[CV_TXT-HELLO]: Hello: you");
    }
    EXPECT_EQ(FileBytes(kReferenceMap),
              before + Utf16Bytes(u"\t\t\t[CV_TXT- MORE]\tMore \u20AC\r\n").substr(2));
    EXPECT_EQ(Entries("lbxTokens").back(), u"[CV_TXT- MORE]: More \u20AC");
}

TEST_F(Dialogs, ATokenIsRemovedAsFarAsTheUserWants) {
    Pick(Window(), "lstLanguages", u"French");
    const std::string reference = FileBytes(kReferenceMap);
    const std::string french = FileBytes(kFrenchMap);
    AskToRemove("cmdCancel");
    Press(Window(), "cmdRemoveToken");
    AskToRemove();
    ExpectConfirmation(wxID_CANCEL);
    Press(Window(), "cmdRemoveToken");
    EXPECT_EQ(FileBytes(kReferenceMap), reference);

    AskToRemove();
    ExpectConfirmation(wxID_NO);
    Press(Window(), "cmdRemoveToken");
    EXPECT_EQ(Token(), u"[CV_TXT-BYE]: Goodbye");
    EXPECT_EQ(FileBytes(kFrenchMap), french);

    PutFile(kReferenceMap, reference);
    Pick(Window(), "lstLanguages", u"German");
    AskToRemove();
    ExpectConfirmation(wxID_YES);
    Press(Window(), "cmdRemoveToken");
    EXPECT_EQ(FileBytes(kFrenchMap), Utf16Bytes(u"[CV_TXT-BYE]\tAu revoir\r\n"));
    EXPECT_EQ(Entries("lbxTokens").size(), 2U);
}

TEST_F(Dialogs, TheDefaultTranslationComesFromTheDistributionServer) {
    const std::string question =
        "You have requested to download the default/current French translation table for "
        "WebMail[default.net] from the Corvane web site.\n\nThis will overwrite any previous "
        "modifications you have made to the this language.\n\nDo you wish to continue?";
    const auto folder = std::filesystem::path(std::getenv("TEST_WEB_FOLDER")) /
                        "Tools/WebMail/bases/default.net/Languages";
    std::string published = Utf16Bytes(u"[CV_TXT-HELLO]\tSalut\r\n");
    published += std::string(5000, '\0');
    PutFile(folder / kFrenchMap, published);
    Pick(Window(ConfiguredServices()), "lstLanguages", u"French");
    for (const int answer : {wxID_NO, wxID_YES}) {
        EXPECT_EQ(Translation(), u"Bonjour");
        script_.ExpectBox("Update Language File: WebMail[default.net]", question,
                          wxYES_NO | wxICON_QUESTION, answer);
        Choose(Window(), frmMain::mnuFetchDefault);
    }
    EXPECT_EQ(FileBytes(kFrenchMap), published);
    EXPECT_EQ(Translation(), u"Bonjour");  // nothing is reloaded until a token is clicked
    Pick(Window(), "lbxTokens", u"[CV_TXT-BYE]: Goodbye");
    Pick(Window(), "lbxTokens", u"[CV_TXT-HELLO]: Hello: you");
    EXPECT_EQ(Translation(), u"Salut");
}

}  // namespace
}  // namespace cvlang
