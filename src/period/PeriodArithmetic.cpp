#include "period/PeriodArithmetic.h"

#include <algorithm>
#include <limits>

namespace quillet {

Instant PeriodArithmetic::firstSecondOfDayFromDate(Instant date) const {
    return gregorian_.startOfDay(date);
}

Instant PeriodArithmetic::lastSecondOfDayFromDate(Instant date) const {
    if (date != gregorian_.startOfDay(date)) {
        return gregorian_.add(date, {.days = 1, .seconds = -1});
    }
    return lastSecondBefore(date, {.days = 1});
}

Instant PeriodArithmetic::firstSecondOfWeekFromDate(Instant date) const {
    const int weekday = gregorian_.components(date).weekday;
    return firstSecondOfDate(date, {.days = current_.firstWeekday() - weekday});
}

Instant PeriodArithmetic::lastSecondOfWeekFromDate(Instant date) const {
    return lastSecondBeforeDate(firstSecondOfWeekFromDate(date), {.days = 7});
}

Instant PeriodArithmetic::firstSecondOfMonthFromDate(Instant date) const {
    return firstSecondOfDate(date, {.days = 1 - gregorian_.components(date).day});
}

Instant PeriodArithmetic::lastSecondOfMonthFromDate(Instant date) const {
    return lastSecondBeforeDate(firstSecondOfMonthFromDate(date), {.months = 1});
}

Instant PeriodArithmetic::firstSecondOfYearFromDate(Instant date) const {
    return firstSecondOfMonthFromDate(
        firstSecondOfDate(date, {.months = 1 - gregorian_.components(date).month}));
}

Instant PeriodArithmetic::lastSecondOfYearFromDate(Instant date) const {
    return lastSecondOfMonthFromDate(
        firstSecondOfDate(firstSecondOfYearFromDate(date), {.months = 11}));
}

DateComponents PeriodArithmetic::noonOf(Instant date) const {
    DateComponents noon = gregorian_.components(date);
    noon.hour = 12;
    noon.minute = 0;
    noon.second = 0;
    return noon;
}

Instant PeriodArithmetic::firstSecondAfter(Instant date, const DateOffset& offset) const {
    // From noon, which every day has, so that a day without a midnight shifts nothing.
    return gregorian_.startOfDay(gregorian_.add(gregorian_.instant(noonOf(date)), offset));
}

Instant PeriodArithmetic::lastSecondBefore(Instant date, const DateOffset& offset) const {
    return firstSecondAfter(date, offset) - std::chrono::seconds(1);
}

Instant PeriodArithmetic::firstSecondOfDate(Instant date, const DateOffset& offset) const {
    const Instant noon = gregorian_.instant(noonOf(date));
    DateComponents wanted = gregorian_.components(
        gregorian_.add(noon, {.years = offset.years, .months = offset.months}));
    // Counted on the calendar's page, where a day that a zone left out has its place.
    wanted.day += offset.days;
    return gregorian_.startOfDay(gregorian_.instant(wanted));
}

Instant PeriodArithmetic::lastSecondBeforeDate(Instant date, const DateOffset& offset) const {
    return firstSecondOfDate(date, offset) - std::chrono::seconds(1);
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
