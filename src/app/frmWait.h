// The wait window, and the hourglass that goes with it.
#pragma once

#include <functional>
#include <memory>

#include "run/Progress.h"

namespace cvlang {

class frmWait;

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
    std::unique_ptr<frmWait> window_;
};

}  // namespace cvlang
