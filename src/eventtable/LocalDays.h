#pragma once

#include "platform/CalendarArithmetic.h"
#include "platform/Instant.h"

#include <map>

namespace quillet {

/// Times of day and weekdays of many instants: the calendar is asked once for each day.
class LocalDays {
public:
    explicit LocalDays(const CalendarArithmetic& calendar)
        : calendar_(calendar) {}

    /// Hour, minute and second in seconds.
    [[nodiscard]] int secondsOfDay(Instant instant);
    /// 1 Sunday … 7 Saturday.
    [[nodiscard]] int weekday(Instant instant);
    /// The calendar's time zone has changed.
    void forget();

private:
    struct Day {
        /// Exclusive.
        Instant end;
        /// Whether the clock runs through, 24 hours without a change.
        bool isPlain = false;
        int weekday = 0;
    };
    using Days = std::map<Instant, Day>;

    /// Null for an instant of a date that returned after the next had begun.
    [[nodiscard]] const Days::value_type* dayOf(Instant instant);

    const CalendarArithmetic& calendar_;
    /// By their starts.
    Days days_;
    const Days::value_type* lastDay_ = nullptr;
};

} // namespace quillet
