// Shows each window of the program on the sample installation and has it photographed: it names the
// picture and the window's place on standard output and waits for a line on standard input.
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/modalhook.h>
#include <wx/utils.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <string>

#include "app/frmMain.h"
#include "platform/Process.h"
#include "platform/Registry.h"
#include "widgets/MessageBoxes.h"
#include "widgets/SelectionList.h"
#include "widgets/TextBox.h"

namespace cvlang {
namespace {

/// Gives the window manager and the toolkit the time that they need to draw.
void Settle() {
    for (int i = 0; i < 100; ++i) {
        wxMilliSleep(20);
        wxTheApp->Yield(true);
        wxTheApp->ProcessPendingEvents();
    }
}

void TakePicture(const char* name, const wxWindow& window) {
    Settle();
    const wxRect place = window.GetScreenRect();
    std::cout << name << " " << place.width << "x" << place.height << "+" << place.x << "+"
              << place.y << std::endl;
    std::string answer;
    std::getline(std::cin, answer);
}

template <typename Window>
Window& Find(wxWindow& parent, const char* name) {
    return dynamic_cast<Window&>(*wxWindow::FindWindowByName(name, &parent));
}

/// Fills a dialog in, takes its picture and closes it.
class DialogPicture : private wxModalDialogHook {
  public:
    DialogPicture(const char* name, std::function<void(wxDialog&)> fillIn)
        : name_(name), fillIn_(std::move(fillIn)) {
        Register();
    }
    ~DialogPicture() override { Unregister(); }

  private:
    int Enter(wxDialog* dialog) override {
        dialog->CallAfter([this, dialog] {
            fillIn_(*dialog);
            TakePicture(name_, *dialog);
            dialog->EndModal(wxID_CANCEL);
        });
        return wxID_NONE;
    }

    const char* name_;
    std::function<void(wxDialog&)> fillIn_;
};

void Choose(wxWindow& window, wxEventType type, int id) {
    wxCommandEvent event(type, id);
    window.GetEventHandler()->ProcessEvent(event);
}

void Press(wxWindow& window, const char* button) {
    auto& pressed = Find<wxWindow>(window, button);
    Choose(pressed, wxEVT_BUTTON, pressed.GetId());
}

void Fill(wxWindow& dialog, const char* box, const char16_t* text) {
    Find<TextBox>(dialog, box).Load(text);
}

class PicturesApp : public wxApp {
  public:
    explicit PicturesApp(std::u16string language) : language_(std::move(language)) {}

    bool OnInit() override {
        wxLog::EnableLogging(false);
        window_ = new frmMain(program_, ConfiguredServices());
        window_->SetPosition({60, 60});
        window_->Show();
        return true;
    }

    int OnRun() override {
        SetExitOnFrameDelete(false);
        CallAfter([this] {
            TakeAll();
            ExitMainLoop();
        });
        return wxApp::OnRun();
    }

  private:
    void TakeAll() {
        Settle();
        auto& languages = Find<SelectionList>(*window_, "lstLanguages");
        const auto& names = languages.Entries();
        languages.Click(static_cast<std::size_t>(std::find(names.begin(), names.end(), language_) -
                                                 names.begin()));
        Settle();
        Find<SelectionList>(*window_, "lbxTokens").Click(2);
        TakePicture("main-window", *window_);
        ShowDialogs();
        program_.progress->Begin();
        program_.progress->Expect([] { return 5; });
        for (int i = 0; i < 3; ++i) {
            wxMilliSleep(60);
            program_.progress->Step();
        }
        TakePicture("wait", *wxWindow::FindWindowByName("frmWait"));
        program_.progress->End();
        window_->Destroy();
        Settle();
    }

    void ShowDialogs() {
        {
            const DialogPicture picture("add-language", [](wxDialog& dialog) {
                Fill(dialog, "txtLanguage", u"Greek");
                Fill(dialog, "txtAbbrev", u"el");
            });
            Choose(*window_, wxEVT_MENU, frmMain::mnuNewLanguage);
        }
        {
            const DialogPicture picture("add-token", [](wxDialog& dialog) {
                Fill(dialog, "txtTokenName", u"LOGIN_HINT");
                Fill(dialog, "txtTokenValue", u"Use your full e-mail address.");
            });
            Press(*window_, "cmdAddToken");
        }
        {
            const DialogPicture picture("remove-token", [](wxDialog&) {});
            Press(*window_, "cmdRemoveToken");
        }
        const DialogPicture picture(
            "submit", [](wxDialog& dialog) { Fill(dialog, "txtFrom", u"translator@example.org"); });
        Choose(*window_, wxEVT_MENU, frmMain::mnuSubmitActive);
    }

    std::u16string language_;
    std::unique_ptr<Registry> registry_ = SystemRegistry();
    Configuration config_{*registry_};
    Logs logs_;
    MessageBoxes messages_;
    Program program_{config_, logs_, messages_};
    frmMain* window_ = nullptr;
};

}  // namespace
}  // namespace cvlang

/// Takes the name of the language to select.
int main(int argc, char** argv) {
    wxApp::SetInstance(new cvlang::PicturesApp(cvlang::CommandLineText(argc, argv)));
    int count = 1;
    return wxEntry(count, argv);
}
