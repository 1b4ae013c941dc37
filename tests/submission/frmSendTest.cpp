#include "submission/frmSend.h"

#include "mail/ScriptedPeer.h"
#include "support/FakeProgram.h"
#include "support/WindowScript.h"
#include "widgets/MessageBoxes.h"
#include "widgets/frmWait.h"

namespace cvlang {
namespace {

constexpr const char* kReference = "WebMail-b-tokens.map";
constexpr const char* kOtherCase = "WebMail-b-TOKENS-fr.map";

bool IsWaiting() {
    return wxWindow::FindWindowByName("frmWait") != nullptr;
}

struct WatchedWait : WaitWindow {
    using WaitWindow::WaitWindow;

    void Step() override {
        EXPECT_TRUE(IsWaiting());
        if (fails)
            throw std::runtime_error("No memory left");
        WaitWindow::Step();
    }

    bool fails = false;
};

struct WatchedBoxes : MessageBoxes {
    MessageAnswer Show(const UserMessage& message) override {
        EXPECT_FALSE(IsWaiting());
        return MessageBoxes::Show(message);
    }
};

/// Map files in a folder whose name no code page can hold, and who submits them.
class Submitting : public testing::Test {
  protected:
    Submitting() {
        PutFile(folder_ / kReference, std::string("\xFF\xFE\0\r\n.\r\n", 8));
        PutFile(folder_ / kOtherCase, "x");
    }

    void SubmitAll(int port) {
        frmSend form(nullptr, program_, {u"t@x", u"127.0.0.1", port});
        form.SubmitAllFiles(folder_ / kReference, u"WebMail", u"b");
    }

    static void Send(wxDialog& dialog, const std::u16string& to, const std::u16string& from) {
        Type(dialog, "txtTo", to);
        Type(dialog, "txtFrom", from);
        Press(dialog, "cmdSend");
    }

    void ExpectQuestion(int answer) {
        script_.ExpectBox("Submit Language File", "Send the translated token file(s) to Corvane?",
                          wxYES_NO | wxICON_QUESTION, answer);
    }
    void ExpectSuccess() {
        script_.ExpectBox("Language Token File(s) Sent",
                          "Language token file(s) submitted successfully to Corvane",
                          wxOK | wxICON_NONE);
    }

    FakeProgram fake_;
    const std::filesystem::path folder_ = fake_.folder / "\u65E5";
    WatchedWait waiting_{nullptr};
    WatchedBoxes boxes_;
    Program program_{fake_.config, fake_.logs, boxes_, {}, {}, false, &waiting_};
    WindowScript script_;
};

TEST_F(Submitting, SendsWhatTheUserSeesOnceHeAgrees) {
    ScriptedPeer server("220|250|250|250|354|250|221");
    script_.ExpectDialog("frmSend", [this](wxDialog& dialog) {
        EXPECT_EQ(dialog.GetTitle(), "Submit Language Files");
        EXPECT_EQ(Find<wxWindow>(dialog, "Label4").GetLabel(), "Attachments:");
        EXPECT_EQ(Find<TextBox>(dialog, "txtTo").Text(), u"t@x");
        EXPECT_EQ(Find<TextBox>(dialog, "txtAttachments").GetValue(),
                  wxString(kReference) + ", " + kOtherCase);
        auto& body = Find<wxTextCtrl>(dialog, "txtBody");
        EXPECT_TRUE(body.GetValue().StartsWith("Dear Support Team,"));
        body.SetValue("a\nb");
        Send(dialog, u"t@y", u"f@");
        EXPECT_EQ(wxWindow::FindFocus()->GetName(), "txtFrom");
        EXPECT_EQ(Find<TextBox>(dialog, "txtFrom").GetStringSelection(), "f@");
        Send(dialog, u"t@y", u"f@x");
        EXPECT_TRUE(dialog.IsShown());
        Press(dialog, "cmdSend");
    });
    script_.ExpectBox("Invalid Address",
                      "Invalid sender address. Please specify a valid email address for the 'From' "
                      "field.",
                      wxOK | wxICON_EXCLAMATION);
    ExpectQuestion(wxID_NO);
    ExpectQuestion(wxID_YES);
    ExpectSuccess();
    frmSend(nullptr, program_, {u"t@x", u"127.0.0.1", server.Port()})
        .SubmitFile(folder_ / kReference, folder_ / kOtherCase, u"WebMail", u"French", u"b");
    const std::string mail = server.Received();
    for (const char* part :
         {"MAIL FROM:<f@x>\r\n", "RCPT TO:<t@y>\r\n", "\r\na\r\nb\r\n",
          "\r\nSubject: [Language Token File Submission]: WebMail - b (French)\r\n", kReference,
          kOtherCase, "\r\neA==\r\n"})
        EXPECT_NE(mail.find(part), std::string::npos) << part << " in " << mail;
}

TEST_F(Submitting, ReportsSuccessThoughTheServerRefuses) {
    ScriptedPeer refusing("421 closed");
    script_.ExpectDialog("frmSend", [](wxDialog& dialog) {
        EXPECT_EQ(Find<TextBox>(dialog, "txtAttachments").Text(), u"WebMail-b-tokens.map");
        Send(dialog, u"t@x", u"f@x");
    });
    ExpectQuestion(wxID_YES);
    ExpectSuccess();
    SubmitAll(refusing.Port());
    EXPECT_TRUE(
        fake_.ErrorLog().ends_with("\tSMTP Server is not contactable for domain: 127.0.0.1\r\n"));
}

TEST_F(Submitting, SurvivesAnErrorAmidTheMail) {
    ScriptedPeer server("220");
    waiting_.fails = true;
    script_.ExpectDialog("frmSend", [](wxDialog& dialog) {
        Send(dialog, u"t@x", u"f@x");
        EXPECT_TRUE(dialog.IsShown());
        Press(dialog, "cmdCancel");
    });
    ExpectQuestion(wxID_YES);
    script_.ExpectBox("CVLangTranslator", "No memory left", wxOK | wxICON_ERROR);
    SubmitAll(server.Port());
}

TEST_F(Submitting, TellsThatThereIsNothingToSend) {
    std::filesystem::remove(folder_ / kReference);
    script_.ExpectBox("Send Error", "No translated files for the bbase were available to send.",
                      wxOK | wxICON_INFORMATION);
    SubmitAll(0);
}

}  // namespace
}  // namespace cvlang
