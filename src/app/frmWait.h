// The wait window, and the hourglass that goes with it.
#pragma once

#include <wx/dialog.h>
#include <wx/stopwatch.h>

#include <functional>
#include <memory>

#include "run/Progress.h"

class wxGauge;

namespace cvlang {

/// A window without buttons that asks for patience. Its bar shows steps done of steps to do, or
/// moves while their number is unknown.
class frmWait : public wxDialog {
  public:
    explicit frmWait(wxWindow* parent);

    /// Returns when the window is seen.
    void ShowAndDraw();
    void Expect(std::size_t steps);
    void Step();

  private:
    void Draw(long limit);
    void ShowProgress();

    wxGauge* progress_;
    bool isDrawn_ = false;  // since it was last asked to
    std::size_t toDo_ = 0;
    std::size_t done_ = 0;
    wxStopWatch sinceShown_;  // since the bar was last drawn
};

/// Announces long work with the hourglass and the wait window. What the user does meanwhile has no
/// effect, also not afterwards.
class WaitWindow : public Progress {
  public:
    WaitWindow();
    ~WaitWindow() override;

    void Begin() override;
    void End() override;
    void Expect(const std::function<std::size_t()>& countSteps) override;
    void Step() override;

  private:
    struct Shown;
    std::unique_ptr<Shown> shown_;
};

}  // namespace cvlang
