#include "period/PeriodArithmetic.h"

#include <algorithm>
#include <limits>

namespace quillet {

Instant PeriodArithmetic::firstSecondOfDayFromDate(Instant date) const {
    return gregorian_.startOfDay(date);
}

Instant PeriodArithmetic::lastSecondOfDayFromDate(Instant date) const {
    return lastSecondBefore(date, {.days = 1});
}

Instant PeriodArithmetic::firstSecondOfWeekFromDate(Instant date) const {
    const int weekday = gregorian_.components(date).weekday;
    return firstSecondAfter(date, {.days = current_.firstWeekday() - weekday});
}

Instant PeriodArithmetic::lastSecondOfWeekFromDate(Instant date) const {
    return lastSecondBefore(firstSecondOfWeekFromDate(date), {.days = 7});
}

Instant PeriodArithmetic::firstSecondOfMonthFromDate(Instant date) const {
    return firstSecondAfter(date, {.days = 1 - gregorian_.components(date).day});
}

Instant PeriodArithmetic::lastSecondOfMonthFromDate(Instant date) const {
    return lastSecondBefore(firstSecondOfMonthFromDate(date), {.months = 1});
}

Instant PeriodArithmetic::firstSecondOfYearFromDate(Instant date) const {
    return firstSecondOfMonthFromDate(
        firstSecondAfter(date, {.months = 1 - gregorian_.components(date).month}));
}

Instant PeriodArithmetic::lastSecondOfYearFromDate(Instant date) const {
    return lastSecondOfMonthFromDate(
        firstSecondAfter(firstSecondOfYearFromDate(date), {.months = 11}));
}

Instant PeriodArithmetic::firstSecondAfter(Instant date, const DateOffset& offset) const {
    // From noon, which every day has, so that a day without a midnight shifts nothing.
    DateComponents noon = gregorian_.components(date);
    noon.hour = 12;
    noon.minute = 0;
    noon.second = 0;
    return gregorian_.startOfDay(gregorian_.add(gregorian_.instant(noon), offset));
}

Instant PeriodArithmetic::lastSecondBefore(Instant date, const DateOffset& offset) const {
    return firstSecondAfter(date, offset) - std::chrono::seconds(1);
}

std::int32_t PeriodArithmetic::totalDaysFromStartDate(Instant start, Instant end) const {
    // Half a day absorbs the hours that changes of the clock add or take.
    const double seconds =
        secondsBetween(gregorian_.startOfDay(start), gregorian_.startOfDay(end)) + 43'200.0;
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp(seconds / 86'400.0 + 1.0, double{Limits::min()}, double{Limits::max()}));
}

} // namespace quillet
