#pragma once

#include <QString>

#include <cstdint>

namespace quillet {

/// Whole minutes as hours and minutes: "0h" below 1, "1h", "0h 45m", "2h 5m".
[[nodiscard]] QString makeDurationFromMinutes(std::int64_t minutes);

} // namespace quillet
