#pragma once

#include "platform/Instant.h"

namespace quillet {

/// The fields of a local date and time. month and day count from 1; weekday 1 is Sunday, 7
/// Saturday.
struct DateComponents {
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int weekday = 5;

    friend bool operator==(const DateComponents&, const DateComponents&) = default;
};

/// A calendar distance. All members are added in one step, larger units first; a day of month that
/// the target month lacks becomes its last day.
struct DateOffset {
    int years = 0;
    int months = 0;
    int days = 0;
    int seconds = 0;
};

/// Calendar computations in one calendar system and one time zone. Implementations are safe to
/// read from any thread.
class CalendarArithmetic {
public:
    virtual ~CalendarArithmetic() = default;

    [[nodiscard]] virtual DateComponents components(Instant instant) const = 0;
    /// The instant of these fields (weekday ignored; fields outside their range carry over). A time
    /// that a clock change skips is moved forward by the skipped span; one that occurs twice is the
    /// first of both.
    [[nodiscard]] virtual Instant instant(const DateComponents& components) const = 0;
    /// The first instant of the local day: 00:00:00, or the first time that exists on a day
    /// without a midnight. Milliseconds are dropped.
    [[nodiscard]] virtual Instant startOfDay(Instant instant) const = 0;
    [[nodiscard]] virtual Instant add(Instant instant, const DateOffset& offset) const = 0;
    /// The first day of the week of the user's locale: 1 Sunday … 7 Saturday.
    [[nodiscard]] virtual int firstWeekday() const = 0;
    /// Whether that weekday, 1 Sunday … 7 Saturday, belongs to the weekend of the user's locale; a
    /// day of which only a part does counts.
    [[nodiscard]] virtual bool isWeekend(int weekday) const = 0;
};

} // namespace quillet
