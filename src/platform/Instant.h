#pragma once

#include <QMetaType>

#include <chrono>

namespace quillet {

/// A point in time: milliseconds since 1970-01-01T00:00:00Z, leap seconds not counted.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

/// Seconds from `from` to `to`; negative when `to` is the earlier one.
[[nodiscard]] constexpr double secondsBetween(Instant from, Instant to) {
    return static_cast<double>((to - from).count()) / 1000.0;
}

/// `instant` moved by `seconds`, cut to whole milliseconds.
[[nodiscard]] constexpr Instant plusSeconds(Instant instant, double seconds) {
    return instant + std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000.0));
}

} // namespace quillet

Q_DECLARE_METATYPE(quillet::Instant)
