#include <gmock/gmock.h>

#include "app/MainWindowFixture.h"
#include "app/frmWait.h"
#include "mail/ScriptedPeer.h"

namespace cvlang {
namespace {

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

TEST_F(Submitting, ReportsSuccessThoughTheServerRefuses) {
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

TEST_F(Submitting, TellsThatThereIsNothingToSend) {
    std::filesystem::remove(folder_ / kReferenceMap);
    std::filesystem::remove(folder_ / kFrenchMap);
    script_.ExpectBox("Send Error",
                      "No translated files for the default.netbase were available to send.",
                      kInformation);
    Choose(Window(), "Submit", "Submit All Translations");
}

}  // namespace
}  // namespace cvlang
