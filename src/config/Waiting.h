// Work that takes long, and what the user sees of it.
#pragma once

#include <cstddef>
#include <functional>

namespace cvlang {

/// Where long work is announced. This one shows nothing, as the command line wants it; windows
/// bring their own.
class WaitDisplay {
  public:
    virtual ~WaitDisplay() = default;

    virtual void Begin() {}
    virtual void End() {}
    /// Tells how many steps are to come; they are counted only if somebody looks.
    virtual void Expect(const std::function<std::size_t()>& /*countSteps*/) {}
    /// One step is done, or the work is still going on where steps are not counted.
    virtual void Step() {}

    /// The one that shows nothing.
    static WaitDisplay& None();
};

/// Announces long work from its construction to its destruction.
class WaitScope {
  public:
    explicit WaitScope(WaitDisplay& display) : display_(display) { display_.Begin(); }
    ~WaitScope() { display_.End(); }
    WaitScope(const WaitScope&) = delete;
    WaitScope& operator=(const WaitScope&) = delete;

  private:
    WaitDisplay& display_;
};

}  // namespace cvlang
