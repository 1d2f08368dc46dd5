#pragma once

#include "platform/Instant.h"

namespace quillet {

/// The only source of "now" for the logic.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
};

/// The computer's clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }
};

} // namespace quillet
