#pragma once

#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"

#include <span>
#include <vector>

namespace quillet {

enum class DayKind {
    Workday,
    /// By the custom of the user's country.
    Weekend,
    /// Marked by an event of the calendar that the user named for it, on a weekend or not.
    Holiday,
};

/// Tells days off from others.
class DayKinds {
public:
    /// The events of the calendar of holidays around the period; none where the user named none.
    DayKinds(const CalendarArithmetic& calendar, std::span<const Event> holidays);

    /// Of the local day that begins there.
    [[nodiscard]] DayKind of(Instant dayStart) const;

private:
    struct Span {
        Instant start;
        Instant end;
    };

    [[nodiscard]] bool isHoliday(Instant dayStart) const;

    const CalendarArithmetic& calendar_;
    /// In order of time, without overlap.
    std::vector<Span> holidays_;
};

} // namespace quillet
