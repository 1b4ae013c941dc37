// lists ROUNDS: prints two lists of times in milliseconds. The first is for filling the toolkit's
// list with the entries of the token list. The second is for a click on a language in the main
// window, until the entries are visible and the window responds again.
#include <wx/app.h>
#include <wx/init.h>
#include <wx/listbox.h>
#include <wx/log.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "app/frmMain.h"
#include "platform/Registry.h"
#include "widgets/MessageBoxes.h"
#include "widgets/SelectionList.h"
#include "widgets/Text.h"

namespace cvlang {
namespace {

template <typename Action>
double Milliseconds(wxWindow& window, Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    window.Update();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    wxTheApp->Yield(true);  // the toolkit measures the rows that are not seen when it is idle
    return time.count();
}

SelectionList& Find(wxWindow& window, const char* name) {
    return dynamic_cast<SelectionList&>(*wxWindow::FindWindowByName(name, &window));
}

class ListsApp : public wxApp {
  public:
    explicit ListsApp(int rounds) : rounds_(rounds) {}

    bool OnInit() override {
        wxLog::EnableLogging(false);
        SetExitOnFrameDelete(false);
        CallAfter([this] {
            Measure();
            ExitMainLoop();
        });
        return true;
    }

  private:
    void Measure() {
        frmMain window(program_, ConfiguredServices());
        window.Show();
        auto& languages = Find(window, "lstLanguages");
        languages.Click(0);
        wxArrayString entries;
        for (const std::u16string& entry : Find(window, "lbxTokens").Entries())
            entries.Add(ToWx(entry));

        wxFrame bareWindow(nullptr, wxID_ANY, "Bare");
        wxListBox bareList(&bareWindow, wxID_ANY);
        bareWindow.Show();
        wxTheApp->Yield(true);
        std::vector<double> bare;
        std::vector<double> click;
        for (int round = 0; round < rounds_; ++round) {
            bare.push_back(Milliseconds(bareList, [&] { bareList.Set(entries); }));
            click.push_back(Milliseconds(window, [&] { languages.Click(0); }));
        }
        Print(bare);
        Print(click);
    }

    static void Print(const std::vector<double>& times) {
        for (const double time : times)
            std::cout << time << ' ';
        std::cout << '\n';
    }

    int rounds_;
    std::unique_ptr<Registry> registry_ = SystemRegistry();
    Configuration config_{*registry_};
    Logs logs_;
    MessageBoxes messages_;
    Program program_{config_, logs_, messages_};
};

}  // namespace
}  // namespace cvlang

int main(int argc, char** argv) {
    wxApp::SetInstance(new cvlang::ListsApp(argc > 1 ? std::atoi(argv[1]) : 1));
    int count = 1;
    return wxEntry(count, argv);
}
