#include "app/WindowMode.h"

#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include "app/frmMain.h"
#include "widgets/ErrorGuard.h"
#include "widgets/MessageBoxes.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

/// A session of Windows may have nothing to show a window on; GTK has refused to start then.
bool CanMakeWindows() {
    wxFrame probe;
    return probe.Create(nullptr, wxID_ANY, wxEmptyString);
}

/// The toolkit's side of the program.
class WindowApp : public wxApp {
  public:
    WindowApp(const Configuration& config, Logs& logs) : program_{config, logs, messages_} {
        SetAppDisplayName(ToWx(kProgramTitle));
    }

    // The base's own would read the command line.
    bool OnInit() override {
        if (!CanMakeWindows())
            return false;
        (new frmMain(program_, ConfiguredServices()))->Show();
        return true;
    }

    // What no handler has caught: shown here too, and the window lives on.
    bool OnExceptionInMainLoop() override {
        ShowingErrors(messages_, [] { throw; });
        return true;
    }

  private:
    MessageBoxes messages_;
    Program program_;
};

/// The toolkit takes arguments of its own from the command line; it is given none.
struct NoArguments {
    int count = 1;
    char name[17] = "CVLangTranslator";
    char* values[2] = {name, nullptr};
};

/// The toolkit would tell its troubles in boxes of its own, also when there is no display for them.
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
