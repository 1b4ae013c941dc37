#include "app/frmWait.h"

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/utils.h>

#include <algorithm>

#include "widgets/Layout.h"
#include "widgets/NativeControls.h"

namespace cvlang {
namespace {

// In milliseconds. Drawing must not cost more than the work.
constexpr long kRedrawAfter = 100;
constexpr long kRedrawnWithin = 20;
constexpr long kShownWithin = 1000;
constexpr int kBarWidth = 320;

}  // namespace

/// A window without buttons that asks for patience. Its bar shows steps done of steps to do, or
/// moves while their number is unknown. No other window takes input until it is gone.
class frmWait : public wxDialog {
  public:
    /// Returns when the window is seen.
    explicit frmWait(wxWindow* parent)
        : wxDialog(parent, wxID_ANY, "Please Wait ...", wxDefaultPosition, wxDefaultSize, wxCAPTION,
                   "frmWait") {
        const auto addLabel = [this](const char* text, const char* name) {
            auto* label = new wxStaticText(this, wxID_ANY, text);
            label->SetName(name);
            GetSizer()->Add(label, wxSizerFlags().Border(wxALL, FromDIP(kWindowMargin)));
        };
        SetProgramIcon(*this);
        SetSizer(new wxBoxSizer(wxVERTICAL));
        addLabel("Corvane setup is now processing your request.", "lblStatusMessage");
        addLabel("This process may take several minutes. Please wait...", "lblTimeMessage");
        progress_ = new wxGauge(this, wxID_ANY, kBarWidth, wxDefaultPosition,
                                FromDIP(wxSize(kBarWidth, -1)));
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
        Show();
        Draw(kShownWithin);
    }

    // What was typed and clicked meanwhile goes to windows that do not take it. Asking where the
    // pointer is waits until the display has sent everything.
    ~frmWait() override {
        wxGetMousePosition();
        wxTheApp->Yield(true);
    }

    void Expect(std::size_t steps) {
        toDo_ = steps;
        done_ = 0;
        progress_->SetValue(0);
    }

    void Step() {
        ++done_;
        if (sinceShown_.Time() < kRedrawAfter)
            return;
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

  private:
    // A display shows windows some time after it was asked to, and draws them once a frame.
    void Draw(long limit) {
        isDrawn_ = false;
        for (const wxStopWatch time; !isDrawn_ && time.Time() < limit; wxMilliSleep(1))
            wxTheApp->Yield(true);
    }

    wxBusyCursor hourglass_;
    wxWindowDisabler onlyThis_{this};
    wxGauge* progress_;
    bool isDrawn_ = false;  // since it was last asked to
    std::size_t toDo_ = 0;
    std::size_t done_ = 0;
    wxStopWatch sinceShown_;  // since the bar was last drawn
};

WaitWindow::WaitWindow() = default;
WaitWindow::~WaitWindow() = default;

void WaitWindow::Begin() {
    // In front of the window that was opened last, which a click raises.
    window_ = std::make_unique<frmWait>(wxTopLevelWindows.GetLast()->GetData());
}

void WaitWindow::End() {
    window_.reset();
}

void WaitWindow::Expect(const std::function<std::size_t()>& countSteps) {
    if (window_)
        window_->Expect(countSteps());
}

void WaitWindow::Step() {
    if (window_)
        window_->Step();
}

}  // namespace cvlang
