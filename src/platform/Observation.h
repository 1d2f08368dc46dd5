#pragma once

#include <functional>
#include <utility>

namespace quillet {

/// Keeps an observer registered for as long as it lives. Movable, not copyable.
class [[nodiscard]] Observation {
public:
    Observation() = default;
    explicit Observation(std::function<void()> stop)
        : stop_(std::move(stop)) {}
    Observation(Observation&& other) noexcept
        : stop_(std::exchange(other.stop_, nullptr)) {}
    Observation& operator=(Observation&& other) noexcept {
        if (this != &other) {
            reset();
            stop_ = std::exchange(other.stop_, nullptr);
        }
        return *this;
    }
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() { reset(); }

    /// Stops observing now.
    void reset() {
        if (auto stop = std::exchange(stop_, nullptr)) {
            stop();
        }
    }

private:
    std::function<void()> stop_;
};

} // namespace quillet
