#pragma once

#include "backends/icsfolder/RawEvent.h"

#include <vector>

namespace quillet {

/// Everything that bears one UID. Refers to events that live elsewhere.
struct EventFamily {
    std::vector<const RawEvent*> masters;
    std::vector<const RawEvent*> exceptions;
    /// Exceptions that do not say of what.
    std::vector<const RawEvent*> unplaced;

    void add(const RawEvent& event);
    /// Leaves what holds: of several versions the newest, of equal ones the last.
    void keepWhatHolds();

    /// The start that an exception replaces, however the exception names it.
    [[nodiscard]] std::chrono::sys_seconds originalOf(const RawEvent& exception) const;
};

/// A time of another zone in the wall-clock time of a series.
[[nodiscard]] LocalSeconds inZoneOf(const RawEvent& master, const RawTime& time);

} // namespace quillet
