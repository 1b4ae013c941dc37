#include "support/WindowScript.h"

#include <wx/app.h>
#include <wx/display.h>
#include <wx/log.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/utils.h>

#include <cstdlib>

#include "widgets/Text.h"

namespace cvlang {
namespace {

void RunIn(wxDialog& dialog, const std::function<void(wxDialog&)>& actions) {
    try {
        actions(dialog);
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
    }
    if (dialog.IsShown() && dialog.IsModal()) {
        ADD_FAILURE() << dialog.GetTitle() << " is still open";
        dialog.EndModal(wxID_CANCEL);
    }
}

void Raise(wxWindow& window, wxEventType type, int id) {
    wxCommandEvent event(type, id);
    window.ProcessWindowEvent(event);
    Settle();
}

void FailTheTest(const wxString& file, int line, const wxString& /*function*/,
                 const wxString& condition, const wxString& message) {
    ADD_FAILURE_AT(file.utf8_str(), line) << condition << " " << message;
}

class TestApp : public wxApp {
  public:
    bool OnInit() override {
        wxSetAssertHandler(FailTheTest);
        delete wxLog::SetActiveTarget(new wxLogStderr);
        return true;
    }
    int OnRun() override {
        // Modal windows of a test must not end the application when they close.
        SetExitOnFrameDelete(false);
        return RUN_ALL_TESTS();
    }
};

}  // namespace

void Settle(int milliseconds) {
    const wxStopWatch time;
    do {
        wxTheApp->Yield();
        wxTheApp->ProcessPendingEvents();
        wxMilliSleep(milliseconds == 0 ? 0 : 5);
    } while (time.Time() < milliseconds);
}

wxWindow& FindByText(wxWindow& parent, const wxString& text) {
    wxWindow* found = wxWindow::FindWindowByLabel(text, &parent);
    if (dynamic_cast<wxStaticText*>(found) != nullptr)
        found = found->GetNextSibling();
    if (found == nullptr)
        found = wxWindow::FindWindowByName(text, &parent);
    if (found == nullptr || !found->IsShownOnScreen())
        throw std::runtime_error("There is no " + text.utf8_string());
    return *found;
}

void Press(wxWindow& parent, const wxString& button) {
    auto& pressed = Find<wxButton>(parent, button);
    EXPECT_TRUE(pressed.IsEnabled()) << button;
    const wxRect screen = wxDisplay(&pressed).GetClientArea();
    EXPECT_TRUE(screen.Contains(pressed.GetScreenRect())) << button << " is off the screen";
    Raise(pressed, wxEVT_BUTTON, pressed.GetId());
}

void Choose(wxFrame& frame, const wxString& menu, const wxString& entry) {
    const int id = frame.GetMenuBar()->FindMenuItem(menu, entry);
    EXPECT_NE(id, wxNOT_FOUND) << menu << " > " << entry;
    Raise(frame, wxEVT_MENU, id);
}

void Pick(wxWindow& parent, const wxString& list, const std::u16string& entry) {
    auto& picked = Find<SelectionList>(parent, list);
    const int found = picked.FindString(ToWx(entry), true);
    ASSERT_NE(found, wxNOT_FOUND) << ToWx(entry);
    picked.SetSelection(found);
    Raise(picked, wxEVT_LISTBOX, picked.GetId());
}

void Type(wxWindow& parent, const wxString& box, const std::u16string& text) {
    Find<wxTextCtrl>(parent, box).SetValue(ToWx(text));
    Settle();
}

wxImage ScreenPixels(const wxRect& place) {
    Settle(200);
    // GTK itself would give the first picture again.
    const wxString command =
        wxString::Format("import -window root -crop %dx%d+%d+%d +repage bmp3:screen", place.width,
                         place.height, place.x, place.y);
    EXPECT_EQ(std::system(command.utf8_str()), 0);
    return {"screen", wxBITMAP_TYPE_BMP};
}

double ShareOf(const wxWindow& window, bool (*counts)(int red, int blue)) {
    const wxImage picture = ScreenPixels(window.GetScreenRect());
    const wxSize size = picture.GetSize();
    int counted = 0;
    for (int i = 0; i < size.x * size.y; ++i) {
        const int x = i % size.x, y = i / size.x;
        counted += counts(picture.GetRed(x, y), picture.GetBlue(x, y)) ? 1 : 0;
    }
    return static_cast<double>(counted) / (size.x * size.y);
}

WindowScript::~WindowScript() {
    EXPECT_TRUE(steps_.empty()) << "did not come: " << steps_.front().first;
    Unregister();
}

void WindowScript::ExpectBox(const wxString& title, const wxString& text, long style, int answer) {
    steps_.emplace_back(title, [=](wxDialog& dialog) {
        constexpr long kAskedFor = wxYES_NO | wxOK | wxCANCEL | wxICON_MASK;
        const auto* box = dynamic_cast<wxMessageDialogBase*>(&dialog);
        EXPECT_EQ(dialog.GetTitle(), title);
        EXPECT_EQ(wxWindow::FindWindowByName("frmWait"), nullptr);  // nobody is asked for patience
        EXPECT_EQ(box == nullptr ? "not a message box" : box->GetMessage(), text);
        EXPECT_EQ(box == nullptr ? -1 : box->GetMessageDialogStyle() & kAskedFor, style) << text;
        return answer;
    });
}

/// The dialog is shown, and the actions run inside its own event loop.
void WindowScript::ExpectDialog(const wxString& title, std::function<void(wxDialog&)> actions) {
    steps_.emplace_back(title, [title, actions = std::move(actions)](wxDialog& dialog) {
        EXPECT_EQ(dialog.GetTitle(), title);
        // Not at once: while a window waits for its frame, other events are processed.
        dialog.Bind(wxEVT_IDLE, [&dialog, actions, begun = false](wxIdleEvent&) mutable {
            if (!begun && dialog.IsModal()) {
                begun = true;
                dialog.CallAfter([&dialog, actions] { RunIn(dialog, actions); });
            }
        });
        return static_cast<int>(wxID_NONE);
    });
}

int WindowScript::Enter(wxDialog* dialog) {
    if (dialog == shown_)
        return wxID_NONE;
    if (steps_.empty()) {
        ADD_FAILURE() << "not foreseen: " << dialog->GetTitle();
        return wxID_CANCEL;
    }
    const auto step = steps_.front().second;
    steps_.pop_front();
    const int answer = step(*dialog);
    shown_ = answer == wxID_NONE ? dialog : nullptr;
    return answer;
}

}  // namespace cvlang

// Tests that show windows run inside the toolkit's own application.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    wxApp::SetInstance(new cvlang::TestApp);
    return wxEntry(argc, argv);
}
