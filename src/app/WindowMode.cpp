#include "app/WindowMode.h"

#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include "app/frmMain.h"
#include "widgets/MessageBoxes.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

/// False in a Windows session without a desktop. On Linux, GTK has then refused to start.
bool CanMakeWindows() {
    wxFrame probe;
    return probe.Create(nullptr, wxID_ANY, wxEmptyString);
}

/// The toolkit's application object.
class WindowApp : public wxApp {
  public:
    WindowApp(const Configuration& config, Logs& logs) : program_{config, logs, messages_} {
        SetAppDisplayName(ToWx(kProgramTitle));
    }

    // The base class would read the command line.
    bool OnInit() override {
        if (!CanMakeWindows())
            return false;
        (new frmMain(program_, ConfiguredServices()))->Show();
        return true;
    }

    // Shows errors that no handler has caught. The window stays open.
    bool OnExceptionInMainLoop() override {
        ShowingErrors(messages_, [] { throw; });
        return true;
    }

  private:
    MessageBoxes messages_;
    Program program_;
};

/// Hides the command line from the toolkit, which has options of its own.
struct NoArguments {
    int count = 1;
    char name[17] = "CVLangTranslator";
    char* values[2] = {name, nullptr};
};

/// Keeps the toolkit from showing boxes of its own, even without a display.
void Quieten() {
    wxDISABLE_DEBUG_SUPPORT();
    wxLog::EnableLogging(false);
}

}  // namespace

ExitStatus ShowMainWindow(const Configuration& config, Logs& logs) {
    Quieten();
    wxApp::SetInstance(new WindowApp(config, logs));
    NoArguments arguments;
    return wxEntry(arguments.count, arguments.values) == 0 ? ExitStatus::Done
                                                           : ExitStatus::NoWindow;
}

bool ShowInBox(const UserMessage& message) {
    Quieten();
    wxApp::SetInstance(new wxApp);
    NoArguments arguments;
    const wxInitializer toolkit(arguments.count, arguments.values);
    if (!toolkit.IsOk() || !CanMakeWindows())
        return false;
    MessageBoxes().Show(message);
    return true;
}

}  // namespace cvlang
