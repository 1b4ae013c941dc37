// Shows each window of the program on the sample installation and saves what the screen shows
// there. The environment names the language to select (PICTURES_LANGUAGE) and the folder
// (PICTURES_FOLDER).
#include <cstdlib>
#include <memory>

#include "app/frmMain.h"
#include "platform/Registry.h"
#include "support/WindowScript.h"
#include "widgets/MessageBoxes.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

void TakePicture(const wxString& name, const wxWindow& window) {
    wxImage picture = ScreenPixels(window.GetScreenRect());
    EXPECT_TRUE(picture.SaveFile(wxString(std::getenv("PICTURES_FOLDER")) + "/" + name + ".png",
                                 wxBITMAP_TYPE_PNG));
}

class Pictures : public testing::Test {
  protected:
    /// Expects a dialog; fills in its boxes, takes its picture and cancels it.
    void ExpectPicture(const wxString& name, const wxString& title,
                       const std::vector<std::pair<wxString, std::u16string>>& boxes) {
        script_.ExpectDialog(title, [=](wxDialog& dialog) {
            for (const auto& [box, text] : boxes)
                Type(dialog, box, text);
            TakePicture(name, dialog);
            Press(dialog, "Cancel");
        });
    }

    std::unique_ptr<Registry> registry_ = SystemRegistry();
    Configuration config_{*registry_};
    Logs logs_;
    MessageBoxes messages_;
    Program program_{config_, logs_, messages_};
    WindowScript script_;
};

TEST_F(Pictures, AreTaken) {
    wxImage::AddHandler(new wxPNGHandler);
    auto& window = *new frmMain(program_, ConfiguredServices());
    window.Show();
    Settle();
    Pick(window, "Target Language:", FromWx(std::getenv("PICTURES_LANGUAGE")));
    Find<SelectionList>(window, "Tokens:").Click(2);
    TakePicture("main-window", window);
    ExpectPicture("add-language", "Add Language: WebMail[default.net]",
                  {{"Enter language name:", u"Greek"},
                   {"Enter abbreviation for language (e.g. EN):", u"el"}});
    Choose(window, "File", "Add New Language...");
    ExpectPicture(
        "add-token", "Add New Token",
        {{"Token Name:", u"LOGIN_HINT"}, {"English Value:", u"Use your full e-mail address."}});
    Press(window, "Add Token...");
    ExpectPicture("remove-token", "Remove Token", {});
    Press(window, "Remove Token...");
    ExpectPicture("submit", "Submit Language Files", {{"From:", u"translator@example.org"}});
    Choose(window, "Submit", "Submit Active Translation");
    program_.progress->Begin();
    program_.progress->Expect([] { return 5; });
    for (int i = 0; i < 3; ++i) {
        wxMilliSleep(60);
        program_.progress->Step();
    }
    TakePicture("wait", Find<wxWindow>(window, "Please Wait ..."));
    program_.progress->End();
    window.Destroy();
    Settle();
}

}  // namespace
}  // namespace cvlang
