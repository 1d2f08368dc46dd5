#pragma once

#include "platform/CalendarArithmetic.h"
#include "platform/Instant.h"

#include <cstdint>

namespace quillet {

/// The bounds and lengths of reporting periods. A period is whole days by the clock on the wall:
/// it starts with the first instant of its first day and ends one second before the day after its
/// last begins, also where a day has 23 or 25 hours or no midnight.
class PeriodArithmetic {
public:
    /// The longest period in days, both ends counted.
    static constexpr int longestPeriodDays = 1460;

    /// `current` is the user's calendar, which knows the first day of the week; `gregorian`
    /// computes. Both are in the same time zone.
    PeriodArithmetic(const CalendarArithmetic& gregorian, const CalendarArithmetic& current)
        : gregorian_(gregorian)
        , current_(current) {}

    [[nodiscard]] Instant firstSecondOfDayFromDate(Instant date) const;
    /// One day behind the date, less a second: the last second of a day whose first second is
    /// given. The date is not cut to its day first.
    [[nodiscard]] Instant lastSecondOfDayFromDate(Instant date) const;
    /// The first day of the week is found without wrap-around: where the weekday's number is
    /// smaller than the first weekday's, the week is the one that begins behind the date. So with
    /// weeks from Monday a Sunday belongs to the week of the next day. This is intended.
    [[nodiscard]] Instant firstSecondOfWeekFromDate(Instant date) const;
    [[nodiscard]] Instant lastSecondOfWeekFromDate(Instant date) const;
    [[nodiscard]] Instant firstSecondOfMonthFromDate(Instant date) const;
    [[nodiscard]] Instant lastSecondOfMonthFromDate(Instant date) const;
    [[nodiscard]] Instant firstSecondOfYearFromDate(Instant date) const;
    [[nodiscard]] Instant lastSecondOfYearFromDate(Instant date) const;

    /// @name Spans of days
    /// Counted in days that were lived, so that a period keeps its length wherever it goes: a date
    /// that a zone left out (30 December 2011 on Samoa) does not count.
    /// @{
    /// The first second of the day that lies the offset away from the date's day.
    [[nodiscard]] Instant firstSecondAfter(Instant date, const DateOffset& offset) const;
    /// The last second of the day before the one that lies the offset away from the date's day: the
    /// end of a span that starts with the date's day and is as long as the offset.
    [[nodiscard]] Instant lastSecondBefore(Instant date, const DateOffset& offset) const;
    /// @}

    /// @name Weeks, months and years
    /// Counted in dates of the calendar, so that a month begins with its 1st and a week with its
    /// first weekday wherever a date was left out. One that was left out stands for the next.
    /// @{
    [[nodiscard]] Instant firstSecondOfDate(Instant date, const DateOffset& offset) const;
    [[nodiscard]] Instant lastSecondBeforeDate(Instant date, const DateOffset& offset) const;
    /// @}

    /// The days from one date's day to the other's, both counted; 1 for the same day, 0 or less
    /// when the end lies before.
    [[nodiscard]] std::int32_t totalDaysFromStartDate(Instant start, Instant end) const;

    /// 00:00:00 of the date's day, or its first instant, by the user's calendar.
    [[nodiscard]] Instant normalizedStart(Instant date) const { return current_.startOfDay(date); }

private:
    [[nodiscard]] DateComponents noonOf(Instant date) const;

    const CalendarArithmetic& gregorian_;
    const CalendarArithmetic& current_;
};

} // namespace quillet
