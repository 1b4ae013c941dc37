// Work that takes long, and what the user sees of it.
#pragma once

#include <cstddef>
#include <functional>

namespace cvlang {

/// Where long work is announced. This one shows nothing, as the command line wants it; windows
/// bring their own.
class Progress {
  public:
    virtual ~Progress() = default;

    virtual void Begin() {}
    virtual void End() {}
    /// Tells how many steps are to come; they are counted only if somebody looks.
    virtual void Expect(const std::function<std::size_t()>& /*countSteps*/) {}
    /// One step is done, or the work is still going on where steps are not counted.
    virtual void Step() {}

    /// The one that shows nothing.
    static Progress& None();
};

/// Announces long work from its construction to its destruction.
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
