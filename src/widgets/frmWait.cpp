#include "widgets/frmWait.h"

#include <wx/app.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <algorithm>

#include "widgets/Layout.h"

namespace cvlang {
namespace {

constexpr long kRedrawAfter = 50;  // milliseconds: drawing must not cost more than the work
constexpr int kBarWidth = 320;

}  // namespace

frmWait::frmWait(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Please Wait ...", wxDefaultPosition, wxDefaultSize, wxCAPTION,
               "frmWait") {
    const auto addLabel = [this](const char* text, const char* name) {
        auto* label = new wxStaticText(this, wxID_ANY, text);
        label->SetName(name);
        GetSizer()->Add(label, wxSizerFlags().Border(wxALL, FromDIP(kWindowMargin)));
    };
    SetSizer(new wxBoxSizer(wxVERTICAL));
    addLabel("Corvane setup is now processing your request.", "lblStatusMessage");
    addLabel("This process may take several minutes. Please wait...", "lblTimeMessage");
    progress_ = new wxGauge(this, wxID_ANY, 1, wxDefaultPosition, FromDIP(wxSize(kBarWidth, -1)));
    GetSizer()->Add(progress_, wxSizerFlags().Expand().Border(wxALL, FromDIP(kWindowMargin)));
    GetSizer()->SetSizeHints(this);
    CentreOnParent();
}

void frmWait::Expect(std::size_t steps) {
    toDo_ = steps;
    done_ = 0;
    progress_->SetRange(std::max(1, static_cast<int>(steps)));
}

void frmWait::Step() {
    ++done_;
    if (sinceShown_.Time() >= kRedrawAfter)
        ShowProgress();
}

void frmWait::ShowProgress() {
    if (toDo_ == 0) {
        progress_->Pulse();
    } else {
        progress_->SetValue(static_cast<int>(std::min(done_, toDo_)));
    }
    RepaintWindows();
    sinceShown_.Start();
}

/// What stands on the screen while the program works. It is undone in the opposite order.
struct WaitWindow::Shown {
    explicit Shown(wxWindow* parent) : window(parent), onlyThis(&window) {
        window.Show();
        // Showing and updating alone leave a GTK window black.
        RepaintWindows();
    }

    wxBusyCursor hourglass;
    frmWait window;
    wxWindowDisabler onlyThis;
};

WaitWindow::WaitWindow(wxWindow* parent) : parent_(parent) {}

WaitWindow::~WaitWindow() = default;

void WaitWindow::Begin() {
    shown_ = std::make_unique<Shown>(parent_);
}

void WaitWindow::End() {
    shown_.reset();
}

void WaitWindow::Expect(const std::function<std::size_t()>& countSteps) {
    if (shown_)
        shown_->window.Expect(countSteps());
}

void WaitWindow::Step() {
    if (shown_)
        shown_->window.Step();
}

void RepaintWindows() {
    wxSafeYield(nullptr, true);
}

}  // namespace cvlang
