#pragma once

#include <functional>
#include <memory>

namespace quillet {

/// Calls back once, later, on the main thread.
class OneShotTimer {
public:
    virtual ~OneShotTimer() = default;
    /// Each call stands for itself: a second start does not replace the first.
    virtual void start(double seconds, std::function<void()> callback) = 0;
};

/// A timer on the calling thread's event loop. Destroying it drops what has not yet been called.
[[nodiscard]] std::unique_ptr<OneShotTimer> makeOneShotTimer();

} // namespace quillet
