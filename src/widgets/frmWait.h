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

    void Expect(std::size_t steps);
    void Step();

  private:
    void ShowProgress();

    wxGauge* progress_;
    std::size_t toDo_ = 0;
    std::size_t done_ = 0;
    wxStopWatch sinceShown_;  // since the bar was last drawn
};

/// Announces long work with the hourglass and the wait window. All input is refused meanwhile.
class WaitWindow : public Progress {
  public:
    /// The parent must outlive the object.
    explicit WaitWindow(wxWindow* parent);
    ~WaitWindow() override;

    void Begin() override;
    void End() override;
    void Expect(const std::function<std::size_t()>& countSteps) override;
    void Step() override;

  private:
    struct Shown;
    wxWindow* parent_;
    std::unique_ptr<Shown> shown_;
};

/// Lets the windows repaint once, with all input refused: nothing can be pressed again meanwhile.
void RepaintWindows();

}  // namespace cvlang
