#pragma once

#include <algorithm>
#include <chrono>
#include <optional>

namespace quillet {

/// How long the service is waited for, and how often it is tried.
struct ServiceLimits {
    /// A call that has no answer, or a reading without progress, for this long has failed.
    std::chrono::milliseconds answer{20'000};
    /// After this a query goes on without the calendar.
    std::chrono::milliseconds patience{1000};
    /// Before the first new attempt after a failure; doubles with each further one.
    std::chrono::milliseconds firstRetry{1000};
    std::chrono::milliseconds longestRetry{60'000};
    /// A calendar that lasted this long begins again with the first retry.
    std::chrono::milliseconds lasting{30'000};
    /// How often a service that says nothing is asked whether it is still there.
    std::chrono::milliseconds probe{30'000};
    /// Changes that come within this time are shown together.
    std::chrono::milliseconds gathering{50};
    /// How long after its start the service may still be about to list calendars that it has.
    std::chrono::milliseconds settling{10'000};
};

/// When to try again what has failed.
class RetryDelay {
public:
    explicit RetryDelay(const ServiceLimits& limits)
        : limits_(limits)
        , next_(limits.firstRetry) {}

    void succeeded() { succeededAt_ = std::chrono::steady_clock::now(); }
    /// The delay before the next attempt, after one more failure.
    [[nodiscard]] std::chrono::milliseconds failed() {
        const auto now = std::chrono::steady_clock::now();
        if (succeededAt_ && now - *succeededAt_ >= limits_.lasting) {
            next_ = limits_.firstRetry;
        }
        succeededAt_.reset();
        const auto delay = next_;
        next_ = std::min(next_ * 2, limits_.longestRetry);
        return delay;
    }

private:
    ServiceLimits limits_;
    std::chrono::milliseconds next_;
    std::optional<std::chrono::steady_clock::time_point> succeededAt_;
};

} // namespace quillet
