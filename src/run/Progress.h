// The progress of long work.
#pragma once

#include <cstddef>
#include <functional>

namespace cvlang {

/// Shows long work to the user. This class shows nothing, for the command line; windows derive from
/// it.
class Progress {
  public:
    virtual ~Progress() = default;

    virtual void Begin() {}
    virtual void End() {}
    /// Sets the number of steps. `countSteps` is called only if progress is shown.
    virtual void Expect(const std::function<std::size_t()>& /*countSteps*/) {}
    /// One step is done. Without a number of steps: the work continues.
    virtual void Step() {}

    /// An object that shows nothing.
    static Progress& None();
};

/// Shows long work during its lifetime.
class ProgressScope {
  public:
    explicit ProgressScope(Progress& display) : display_(display) { display_.Begin(); }
    ~ProgressScope() { display_.End(); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

  private:
    Progress& display_;
};

}  // namespace cvlang
