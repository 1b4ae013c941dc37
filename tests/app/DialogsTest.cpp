#include <gmock/gmock.h>

#include "app/MainWindowFixture.h"
#include "app/frmWait.h"
#include "support/LoopbackPeer.h"
#include "widgets/Text.h"

namespace cvlang::tests {

TEST_F(MainWindow, AnAddedLanguageIsListedAndARefusalShown) {
    PutFile(kLanguageList, "French\tfr");
    for (const auto& [name, button] : {std::pair{u"french", "OK"},
                                       {u"", "OK"},
                                       {u"Greek", "Cancel"},
                                       {u"Fran\u00E7ais", "OK"}}) {
        EXPECT_EQ(FileBytes(kLanguageList), "French\tfr");
        script_.ExpectDialog("Add Language: WebMail[default.net]",
                             [name = name, button = button](wxDialog& dialog) {
                                 Type(dialog, "Enter language name:", name);
                                 Type(dialog, "Enter abbreviation for language (e.g. EN):", u"el");
                                 Press(dialog, button);
                             });
        if (name == std::u16string(u"french"))
            script_.ExpectBox("Error", "That language name already exists and cannot be added.",
                              kCritical);
        Choose(Window(), "File", "Add New Language...");
    }
    EXPECT_EQ(AnsiToUtf16(FileBytes(kLanguageList)), u"French\tfr\r\nFran\u00E7ais\tel\r\n");
    EXPECT_EQ(Entries(kLanguages), List({u"French", u"Fran\u00E7ais"}));
}

TEST_F(MainWindow, ATokenIsAddedAndRemoved) {
    Pick(Window(), kLanguages, u"French");
    for (const char* button : {"Cancel", "Add"}) {
        EXPECT_EQ(Entries(kTokens).size(), 3U);
        script_.ExpectDialog("Add New Token", [button](wxDialog& dialog) {
            Type(dialog, "Token Name:", u" MORE");
            Type(dialog, "English Value:", u"More \u20AC");
            Press(dialog, button);
        });
        Press(Window(), "Add Token...");
        EXPECT_EQ(Selected(kTokens), kHello);
    }
    EXPECT_EQ(Entries(kTokens), List({kHello, kBye, kNew, u"[CV_TXT- MORE]: More \u20AC"}));

    Pick(Window(), kTokens, kBye);
    script_.ExpectDialog("Remove Token", [](wxDialog& dialog) {
        for (const auto& [label, text] :
             {std::pair{"Token Name:", u"[CV_TXT-BYE]"}, {"English Value:", u"Goodbye"}}) {
            EXPECT_EQ(Find<TextBox>(dialog, label).Text(), text);
            EXPECT_FALSE(Find<TextBox>(dialog, label).IsEditable());
        }
        Press(dialog, "Remove");
    });
    script_.ExpectBox("Confirm Removal",
                      "Also remove this token from all translated language files?",
                      wxYES_NO | wxCANCEL, wxID_YES);
    Press(Window(), "Remove Token...");
    EXPECT_EQ(Entries(kTokens), List({kHello, kNew, u"[CV_TXT- MORE]: More \u20AC"}));
    EXPECT_EQ(FileBytes(kFrenchMap), Utf16Bytes(u"[CV_TXT-HELLO]\tBonjour\r\n"));
}

TEST_F(MainWindow, TheDefaultTranslationComesFromTheDistributionServer) {
    WebPeer server("HTTP/1.0 200 OK\r\n\r\nSalut");
    Pick(Window({{u"127.0.0.1", server.Port()}, {}}), kLanguages, u"French");
    for (const int answer : {wxID_NO, wxID_CANCEL, wxID_YES}) {
        EXPECT_NE(FileBytes(kFrenchMap), "Salut");
        script_.ExpectBox(
            "Update Language File: WebMail[default.net]",
            "You have requested to download the default/current French translation table for "
            "WebMail[default.net] from the Corvane web site.\n\nThis will overwrite any previous "
            "modifications you have made to the this language.\n\nDo you wish to continue?",
            wxYES_NO | wxICON_QUESTION, answer);
        Choose(Window(), "File", "Fetch Default Translation");
    }
    EXPECT_EQ(FileBytes(kFrenchMap), "Salut");
    EXPECT_EQ(Translation(), u"Bonjour");  // nothing is reloaded until a token is clicked
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
    // Replies are waited for by the server's clock.
    Window({{}, {u"t@x", u"127.0.0.1", server.Port(), {}, server.ClientsClock()}});
    Pick(Window(), kLanguages, u"French");
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

struct FailingWait : WaitWindow {
    void Step() override {
        EXPECT_NE(wxWindow::FindWindowByName("frmWait"), nullptr);
        throw std::filesystem::filesystem_error("", "file",
                                                std::make_error_code(std::errc::io_error));
    }
};

TEST_F(Submitting, ReportsSuccessWithoutAServerButNotAfterAnErrorOrWithoutFiles) {
    auto server = std::make_unique<ScriptedPeer>("220");
    Window({{}, {u"t@x", u"127.0.0.1", server->Port()}});
    FailingWait waiting;
    program_.progress = &waiting;
    for (const bool fails : {true, false}) {
        script_.ExpectDialog("Submit Language Files", [fails](wxDialog& dialog) {
            EXPECT_EQ(Find<TextBox>(dialog, "Subject:").GetValue(),
                      "[Language Token File Submission]: WebMail - default.net (All Languages)");
            Send(dialog, u"t@x", u"f@x");
            if (fails)
                Press(dialog, "Cancel");
        });
        ExpectQuestion(wxID_YES);
        fails ? script_.ExpectBox("Error",
                                  "file\n" + std::make_error_code(std::errc::io_error).message(),
                                  kCritical)
              : ExpectSuccess();
        Choose(Window(), "Submit", "Submit All Translations");
        server.reset();
    }
    EXPECT_THAT(fake_.ErrorLog(), testing::HasSubstr("\tFailed to connect to mail server: "));
    for (const char* file : {kReferenceMap, kFrenchMap})
        std::filesystem::remove(folder_ / file);
    script_.ExpectBox("Send Error",
                      "No translated files for the default.netbase were available to send.",
                      kInformation);
    Choose(Window(), "Submit", "Submit All Translations");
}

}  // namespace cvlang::tests
