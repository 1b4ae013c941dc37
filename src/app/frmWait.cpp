#include "app/frmWait.h"

#include <wx/app.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <algorithm>

#include "widgets/Layout.h"

namespace cvlang {
namespace {

// In milliseconds. Drawing must not cost more than the work.
constexpr long kRedrawAfter = 100;
constexpr long kRedrawnWithin = 20;
constexpr long kShownWithin = 1000;
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
    progress_ =
        new wxGauge(this, wxID_ANY, kBarWidth, wxDefaultPosition, FromDIP(wxSize(kBarWidth, -1)));
    GetSizer()->Add(progress_, wxSizerFlags().Expand().Border(wxALL, FromDIP(kWindowMargin)));
    GetSizer()->SetSizeHints(this);
    CentreOnParent();
    // Only the end of the work closes it.
    Bind(wxEVT_CLOSE_WINDOW, [](wxCloseEvent&) {});
    Bind(wxEVT_ICONIZE, [this](wxIconizeEvent&) { Iconize(false); });
    for (wxWindow* window : {static_cast<wxWindow*>(this), static_cast<wxWindow*>(progress_)}) {
        window->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
            isDrawn_ = true;
            event.Skip();
        });
    }
}

void frmWait::ShowAndDraw() {
    Show();
    Draw(kShownWithin);
}

// A display shows windows some time after it was asked to, and draws them once a frame.
void frmWait::Draw(long limit) {
    isDrawn_ = false;
    for (const wxStopWatch time; !isDrawn_ && time.Time() < limit; wxMilliSleep(1))
        wxTheApp->Yield(true);
}

void frmWait::Expect(std::size_t steps) {
    toDo_ = steps;
    done_ = 0;
    progress_->SetValue(0);
}

void frmWait::Step() {
    ++done_;
    if (sinceShown_.Time() >= kRedrawAfter)
        ShowProgress();
}

void frmWait::ShowProgress() {
    sinceShown_.Start();
    if (toDo_ == 0) {
        progress_->Pulse();
    } else {
        const auto value = static_cast<int>(std::min(done_, toDo_) * kBarWidth / toDo_);
        if (value == progress_->GetValue())
            return;
        progress_->SetValue(value);
        progress_->Refresh();
    }
    Draw(kRedrawnWithin);
}

/// What stands on the screen while the program works. It is undone in the opposite order.
struct WaitWindow::Shown {
    // In front of the window that was opened last, which a click raises.
    Shown() : window(wxTopLevelWindows.GetLast()->GetData()), onlyThis(&window) {
        window.ShowAndDraw();
    }
    // What was typed and clicked meanwhile goes to windows that do not take it. Asking where the
    // pointer is waits until the display has sent everything.
    ~Shown() {
        wxGetMousePosition();
        wxTheApp->Yield(true);
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    wxBusyCursor hourglass;
    frmWait window;
    wxWindowDisabler onlyThis;
};

WaitWindow::WaitWindow() = default;
WaitWindow::~WaitWindow() = default;

void WaitWindow::Begin() {
    shown_ = std::make_unique<Shown>();
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

}  // namespace cvlang
