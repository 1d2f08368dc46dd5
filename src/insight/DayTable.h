#pragma once

#include "insight/DayKinds.h"
#include "insight/Slices.h"

#include <chrono>
#include <vector>

namespace quillet {

/// What is known of the local days of a period, looked up once for many events.
class DayTable {
public:
    struct Day {
        /// [start, end) of the local day.
        Instant start;
        Instant end;
        DayKind kind = DayKind::Workday;
        /// Before this and from the other on it is night.
        Instant morning;
        Instant evening;
    };

    /// Of the days that slices of days have. `nightStart` and `nightEnd` are local times of day.
    DayTable(const Slices& days, const DayKinds& kinds, std::chrono::minutes nightStart,
             std::chrono::minutes nightEnd, const CalendarArithmetic& calendar);

    /// The days that [start, end) touches, as far as the table has them; none for an empty span.
    [[nodiscard]] std::span<const Day> touched(Instant start, Instant end) const;

private:
    std::vector<Day> days_;
};

} // namespace quillet
