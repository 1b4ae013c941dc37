// The main function of tests that show windows: they run inside the toolkit's own application.
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdio>

namespace {

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

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    wxApp::SetInstance(new TestApp);
    int count = 1;
    return wxEntry(count, argv);
}
