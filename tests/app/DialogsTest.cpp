#include <gmock/gmock.h>

#include "app/MainWindowFixture.h"
#include "app/frmWait.h"
#include "platform/FileSystem.h"
#include "support/LoopbackPeer.h"
#include "widgets/Text.h"

namespace cvlang::tests {

constexpr const char* kTokenName = "Token Name:";
constexpr const char* kTokenValue = "English Value:";
constexpr long kYesNoCancel = wxYES_NO | wxCANCEL;

class Dialogs : public MainWindow {
  protected:
    void AddLanguage(const std::u16string& name, const std::u16string& abbreviation,
                     const wxString& refusal = "", const char* button = "OK") {
        script_.ExpectDialog("Add Language: WebMail[default.net]", [=](wxDialog& dialog) {
            Type(dialog, "Enter language name:", name);
            Type(dialog, "Enter abbreviation for language (e.g. EN):", abbreviation);
            Press(dialog, button);
        });
        if (!refusal.empty())
            script_.ExpectBox("Error", refusal, kCritical);
        Choose(Window(), "File", "Add New Language...");
    }

    /// Asks to remove [CV_TXT-HELLO]; the answer is given to the question that the action leads to.
    void RemoveToken(const char* button, int answer = 0) {
        script_.ExpectDialog("Remove Token", [=](wxDialog& dialog) {
            for (const auto& [box, text] :
                 {std::pair{kTokenName, u"[CV_TXT-HELLO]"}, {kTokenValue, u"Hello"}}) {
                EXPECT_EQ(Find<TextBox>(dialog, box).Text(), text);
                EXPECT_FALSE(Find<TextBox>(dialog, box).IsEditable());
            }
            Press(dialog, button);
        });
        if (answer != 0) {
            script_.ExpectBox("Confirm Removal",
                              "Also remove this token from all translated language files?",
                              kYesNoCancel, answer);
        }
        Press(Window(), "Remove Token...");
    }
};

TEST_F(Dialogs, AnAddedLanguageIsListedAndARefusalShown) {
    PutFile(kLanguageList, "French\tfr\nGerman\tde");
    AddLanguage(u"french", u"DE", "That language name already exists and cannot be added.");
    AddLanguage(u"", u"el");
    AddLanguage(u"Greek", u"el", "", "Cancel");
    EXPECT_EQ(FileBytes(kLanguageList), "French\tfr\nGerman\tde");

    SetReadOnly(kLanguageList, true);
    if (const std::error_code reason = AppendToFile(kLanguageList, "")) {  // Wine gives root none
        AddLanguage(u"Greek", u"el",
                    ToWx(TextFromPath(fake_.folder / kLanguageList)) + "\n" + reason.message());
    }
    EXPECT_EQ(FileBytes(kLanguageList), "French\tfr\nGerman\tde");
    SetReadOnly(kLanguageList, false);
    AddLanguage(u"Fran\u00E7ais", u"");
    EXPECT_EQ(FileBytes(kLanguageList),
              "French\tfr\r\nGerman\tde\r\nFran\xE7"
              "ais\t\r\n");
    EXPECT_EQ(Entries(kLanguages), List({u"French", u"German", u"Fran\u00E7ais"}));
}

TEST_F(Dialogs, AnAddedTokenIsListed) {
    Pick(Window(), kLanguages, u"French");
    const std::string before = FileBytes(kReferenceMap);
    for (const char* button : {"Cancel", "Add"}) {
        EXPECT_EQ(FileBytes(kReferenceMap), before);
        script_.ExpectDialog("Add New Token", [button](wxDialog& dialog) {
            Type(dialog, kTokenName, u" MORE");
            Type(dialog, kTokenValue, u"More \u20AC");
            Press(dialog, button);
        });
        Press(Window(), "Add Token...");
        EXPECT_EQ(Selected(kTokens), kHello);
    }
    EXPECT_EQ(Entries(kTokens), List({kHello, kBye, kNew, u"[CV_TXT- MORE]: More \u20AC"}));
}

TEST_F(Dialogs, ATokenIsRemovedAsFarAsTheUserWants) {
    const std::string reference = FileBytes(kReferenceMap);
    const std::string language = FileBytes(kFrenchMap);
    Pick(Window(), kLanguages, u"French");
    RemoveToken("Cancel");
    RemoveToken("Remove", wxID_CANCEL);
    EXPECT_EQ(FileBytes(kReferenceMap), reference);
    RemoveToken("Remove", wxID_NO);
    EXPECT_EQ(Entries(kTokens), List({kBye, kNew}));
    EXPECT_EQ(FileBytes(kFrenchMap), language);

    PutFile(kReferenceMap, reference);
    Pick(Window(), kLanguages, u"German");
    std::filesystem::remove(kReferenceMap);
    RemoveToken("Remove", wxID_YES);  // without the English file nothing is removed
    EXPECT_EQ(FileBytes(kFrenchMap), language);
    PutFile(kReferenceMap, reference);
    Pick(Window(), kLanguages, u"German");
    RemoveToken("Remove", wxID_YES);
    EXPECT_EQ(FileBytes(kFrenchMap), Utf16Bytes(u"[CV_TXT-BYE]\tAu revoir\r\n"));
}

TEST_F(Dialogs, TheDefaultTranslationComesFromTheDistributionServer) {
    const std::string question =
        "You have requested to download the default/current French translation table for "
        "WebMail[default.net] from the Corvane web site.\n\nThis will overwrite any previous "
        "modifications you have made to the this language.\n\nDo you wish to continue?";
    const std::string published =
        Utf16Bytes(u"[CV_TXT-HELLO]\tSalut\r\n" + std::u16string(5000, u'\0'));
    WebPeer server("HTTP/1.0 200 OK\r\n\r\n" + published);
    Pick(Window({{u"127.0.0.1", server.Port()}, {}}), kLanguages, u"French");
    for (const int answer : {wxID_NO, wxID_CANCEL, wxID_YES}) {
        EXPECT_NE(FileBytes(kFrenchMap), published);
        script_.ExpectBox("Update Language File: WebMail[default.net]", question,
                          wxYES_NO | wxICON_QUESTION, answer);
        Choose(Window(), "File", "Fetch Default Translation");
    }
    EXPECT_EQ(FileBytes(kFrenchMap), published);
    EXPECT_EQ(Translation(), u"Bonjour");  // nothing is reloaded until a token is clicked
    Pick(Window(), kTokens, kBye);
    Pick(Window(), kTokens, kHello);
    EXPECT_EQ(Translation(), u"Salut");
}

/// Map files in a folder whose name no code page can hold, and who submits them.
class Submitting : public MainWindow {
  protected:
    Submitting() {
        fake_.registry.strings[u"Application Directory"] = TextFromPath(folder_);
        PutFile(folder_ / kReferenceMap, std::string("\xFF\xFE\0\r\n.\r\n", 8));
        PutFile(folder_ / kFrenchMap, "x");
        PutFile(folder_ / "NETWebMail" / "default" / "x", "");
    }

    /// Opens the window with a mail server, by whose clock replies are waited for.
    frmMain& WindowWith(ScriptedPeer& server) {
        return Window({{}, {u"t@x", u"127.0.0.1", server.Port(), {}, server.ClientsClock()}});
    }

    static void Send(wxDialog& dialog, const std::u16string& to, const std::u16string& from) {
        Type(dialog, "To:", to);
        Type(dialog, "From:", from);
        Press(dialog, "Send");
    }

    void ExpectQuestion(int answer) {
        script_.ExpectBox("Submit Language File", "Send the translated token file(s) to Corvane?",
                          wxYES_NO | wxICON_QUESTION, answer);
    }
    void ExpectSuccess() {
        script_.ExpectBox("Language Token File(s) Sent",
                          "Language token file(s) submitted successfully to Corvane", wxOK);
    }

    const std::filesystem::path folder_ = fake_.folder / "\u65E5";
};

TEST_F(Submitting, SendsWhatTheUserSeesOnceHeAgrees) {
    ScriptedPeer server("220|250|250|250|354|250");
    Pick(WindowWith(server), kLanguages, u"French");
    script_.ExpectDialog("Submit Language Files", [](wxDialog& dialog) {
        EXPECT_EQ(Find<TextBox>(dialog, "To:").Text(), u"t@x");
        EXPECT_EQ(Find<TextBox>(dialog, "Attachments:").GetValue(),
                  wxString(kReferenceMap) + ", " + kFrenchMap);
        EXPECT_EQ(Find<TextBox>(dialog, "txtBody").Text(),
                  u"Dear Support Team,\r\n\r\nI have attached the language token files for the "
                  u"following: \r\n\r\nApplication: \tWebMail\r\nBase: \t\tdefault.net\r\n"
                  u"Language: \t\tFrench\r\n\r\nRegards,\r\n");
        Type(dialog, "txtBody", u"a\n\nb");
        Send(dialog, u"t@", u"f@x");
        EXPECT_EQ(wxWindow::FindFocus()->GetName(), "txtTo");
        EXPECT_EQ(Find<TextBox>(dialog, "To:").GetStringSelection(), "t@");
        Send(dialog, u"t@y", u"f@x");
        Press(dialog, "Send");
    });
    script_.ExpectBox("Invalid Address",
                      "Invalid recipient address. Please specify a valid email address for the "
                      "'To' field.",
                      wxOK | wxICON_EXCLAMATION);
    ExpectQuestion(wxID_NO);
    ExpectQuestion(wxID_YES);
    ExpectSuccess();
    Choose(Window(), "Submit", "Submit Active Translation");
    const std::string mail = server.Received();
    for (const char* part :
         {"MAIL FROM:<f@x>\r\n", "RCPT TO:<t@y>\r\n", "\r\na\r\n\r\nb\r\n",
          "\r\nSubject: [Language Token File Submission]: WebMail - default.net (French)\r\n",
          kReferenceMap, kFrenchMap, "\r\neA==\r\n"})
        EXPECT_NE(mail.find(part), std::string::npos) << part << " in " << mail;
}

TEST_F(Submitting, ReportsSuccessThoughTheServerRefusesAndWhenThereIsNothingToSend) {
    ScriptedPeer refusing("421 closed");
    script_.ExpectDialog("Submit Language Files", [](wxDialog& dialog) {
        EXPECT_EQ(Find<TextBox>(dialog, "Subject:").GetValue(),
                  "[Language Token File Submission]: WebMail - default.net (All Languages)");
        Send(dialog, u"t@x", u"f@x");
    });
    ExpectQuestion(wxID_YES);
    ExpectSuccess();
    Choose(WindowWith(refusing), "Submit", "Submit All Translations");
    EXPECT_THAT(fake_.ErrorLog(),
                testing::EndsWith("\tSMTP Server is not contactable for domain: 127.0.0.1\r\n"));
    std::filesystem::remove(folder_ / kReferenceMap);
    std::filesystem::remove(folder_ / kFrenchMap);
    script_.ExpectBox("Send Error",
                      "No translated files for the default.netbase were available to send.",
                      kInformation);
    Choose(Window(), "Submit", "Submit All Translations");
}

struct FailingWait : WaitWindow {
    void Step() override {
        EXPECT_NE(wxWindow::FindWindowByName("frmWait"), nullptr);
        throw std::runtime_error("No memory left");
    }
};

TEST_F(Submitting, SurvivesAnErrorAmidTheMail) {
    ScriptedPeer server("220");
    WindowWith(server);
    FailingWait waiting;
    program_.progress = &waiting;
    script_.ExpectDialog("Submit Language Files", [](wxDialog& dialog) {
        Send(dialog, u"t@x", u"f@x");
        EXPECT_TRUE(dialog.IsShown());
        Press(dialog, "Cancel");
    });
    ExpectQuestion(wxID_YES);
    script_.ExpectBox("CVLangTranslator", "No memory left", kCritical);
    Choose(Window(), "Submit", "Submit All Translations");
}

}  // namespace cvlang::tests
