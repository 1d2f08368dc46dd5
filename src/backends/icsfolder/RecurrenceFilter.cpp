#include "backends/icsfolder/RecurrenceFilter.h"

#include <algorithm>
#include <set>

namespace quillet {

using std::chrono::local_days;
using std::chrono::year_month_day;
using Frequency = RecurrenceRule::Frequency;

namespace {

local_days firstOfYear(std::chrono::year year) {
    return local_days(year / std::chrono::January / 1);
}

/// The first day of the year's first week: the one that has four days or more in the year.
local_days firstWeekStart(std::chrono::year year, unsigned weekStart) {
    const local_days fourth = firstOfYear(year) + std::chrono::days(3);
    const unsigned weekday = std::chrono::weekday(fourth).c_encoding();
    return fourth - std::chrono::days((weekday + 7 - weekStart) % 7);
}

bool contains(const std::vector<int>& values, std::int64_t value) {
    return std::ranges::find(values, value) != values.end();
}

/// Counts 1, 2, 3… from the front and -1, -2, -3… from the end.
bool containsPosition(const std::vector<int>& values, std::int64_t index, std::int64_t size) {
    return contains(values, index + 1) || contains(values, index - size);
}

std::vector<int> orElse(const std::vector<int>& values, std::int64_t value) {
    return values.empty() ? std::vector<int>{static_cast<int>(value)} : values;
}

} // namespace

RecurrenceFilter::RecurrenceFilter(const RecurrenceRule& rule, LocalSeconds start)
    : rule_(rule) {
    const auto day = std::chrono::floor<std::chrono::days>(start);
    takeMissingDayPartsFrom(year_month_day(day), std::chrono::weekday(day).c_encoding());
    for (const int month : rule_.months) {
        monthBits_ |= month >= 1 && month <= 12 ? 1U << month : 0U;
    }
    for (const int monthDay : rule_.monthDays) {
        monthDayBits_ |= monthDay >= 1 && monthDay <= 31 ? 1U << monthDay : 0U;
        monthDayFromEndBits_ |= monthDay <= -1 && monthDay >= -31 ? 1U << -monthDay : 0U;
    }
    for (const auto& position : rule_.weekdays) {
        plainWeekdayBits_ |= position.ordinal == 0 ? 1U << position.weekday : 0U;
    }
    buildTimes(start);
}

void RecurrenceFilter::takeMissingDayPartsFrom(const year_month_day& date, unsigned weekday) {
    if (rule_.frequency != Frequency::Yearly && rule_.frequency != Frequency::Monthly) {
        for (auto& position : rule_.weekdays) {
            position.ordinal = 0;
        }
    }
    if (!rule_.weekdays.empty() || !rule_.monthDays.empty() || !rule_.yearDays.empty() ||
        !rule_.weekNumbers.empty()) {
        if (!rule_.weekNumbers.empty() && rule_.weekdays.empty() && rule_.monthDays.empty() &&
            rule_.yearDays.empty()) {
            rule_.weekdays = {{0, weekday}};
        }
        takeMissingMonthFrom(date);
        return;
    }
    if (rule_.frequency == Frequency::Weekly) {
        rule_.weekdays = {{0, weekday}};
    } else if (rule_.frequency == Frequency::Monthly || rule_.frequency == Frequency::Yearly) {
        rule_.monthDays = {static_cast<int>(static_cast<unsigned>(date.day()))};
        if (rule_.frequency == Frequency::Yearly && rule_.months.empty()) {
            rule_.months = {static_cast<int>(static_cast<unsigned>(date.month()))};
        }
    }
}

void RecurrenceFilter::takeMissingMonthFrom(const year_month_day& date) {
    // The standard means the day of every month by "yearly on the 15th". Nobody who writes it does:
    // the calendar programs of desktops and phones write it for birthdays and show it in the month
    // of the start, and hours that no such program shows must not be billed.
    if (rule_.frequency == Frequency::Yearly && !rule_.monthDays.empty() && rule_.months.empty() &&
        rule_.yearDays.empty() && rule_.weekNumbers.empty()) {
        rule_.months = {static_cast<int>(static_cast<unsigned>(date.month()))};
    }
}

void RecurrenceFilter::buildTimes(LocalSeconds start) {
    const std::chrono::hh_mm_ss clock(start - std::chrono::floor<std::chrono::days>(start));
    const std::vector<int> zero{0};
    const bool hasHours = rule_.frequency > Frequency::Hourly;
    const bool hasMinutes = rule_.frequency > Frequency::Minutely;
    const bool hasSeconds = rule_.frequency > Frequency::Secondly;
    const auto hours = hasHours ? orElse(rule_.hours, clock.hours().count()) : zero;
    const auto minutes = hasMinutes ? orElse(rule_.minutes, clock.minutes().count()) : zero;
    const auto seconds = hasSeconds ? orElse(rule_.seconds, clock.seconds().count()) : zero;
    std::set<std::chrono::seconds> times;
    for (const int hour : hours) {
        for (const int minute : minutes) {
            for (const int second : seconds) {
                times.insert(std::chrono::hours(hour) + std::chrono::minutes(minute) +
                             std::chrono::seconds(second));
            }
        }
    }
    times_.assign(times.begin(), times.end());
}

bool RecurrenceFilter::admitsHour(int hour) const {
    return rule_.hours.empty() || contains(rule_.hours, hour);
}

bool RecurrenceFilter::admitsMinute(int minute) const {
    return rule_.frequency == Frequency::Hourly || rule_.minutes.empty() ||
           contains(rule_.minutes, minute);
}

bool RecurrenceFilter::admitsSecond(int second) const {
    return rule_.frequency != Frequency::Secondly || rule_.seconds.empty() ||
           contains(rule_.seconds, second);
}

bool RecurrenceFilter::admitsDay(local_days day) const {
    const year_month_day date(day);
    const auto month = static_cast<unsigned>(date.month());
    if (!rule_.months.empty() && (monthBits_ & (1U << month)) == 0) {
        return false;
    }
    if (!rule_.monthDays.empty()) {
        const auto monthDay = static_cast<unsigned>(date.day());
        const auto monthLength =
            static_cast<unsigned>((date.year() / date.month() / std::chrono::last).day());
        if ((monthDayBits_ & (1U << monthDay)) == 0 &&
            (monthDayFromEndBits_ & (1U << (monthLength - monthDay + 1))) == 0) {
            return false;
        }
    }
    return (rule_.weekdays.empty() || admitsWeekday(date, day)) &&
           (rule_.yearDays.empty() || admitsYearDay(date, day)) &&
           (rule_.weekNumbers.empty() || admitsWeekNumber(date, day));
}

bool RecurrenceFilter::admitsWeekday(const year_month_day& date, local_days day) const {
    const unsigned weekday = std::chrono::weekday(day).c_encoding();
    if ((plainWeekdayBits_ & (1U << weekday)) != 0) {
        return true;
    }
    const bool isWithinYear = rule_.frequency == Frequency::Yearly && rule_.months.empty();
    const local_days first =
        isWithinYear ? firstOfYear(date.year()) : local_days(date.year() / date.month() / 1);
    const local_days last = isWithinYear
                                ? local_days(date.year() / std::chrono::December / 31)
                                : local_days(date.year() / date.month() / std::chrono::last);
    const int fromFront = static_cast<int>((day - first).count()) / 7 + 1;
    const int fromEnd = -(static_cast<int>((last - day).count()) / 7 + 1);
    return std::ranges::any_of(rule_.weekdays, [&](const auto& position) {
        return position.weekday == weekday &&
               (position.ordinal == fromFront || position.ordinal == fromEnd);
    });
}

bool RecurrenceFilter::admitsYearDay(const year_month_day& date, local_days day) const {
    const std::int64_t index = (day - firstOfYear(date.year())).count();
    return containsPosition(rule_.yearDays, index, date.year().is_leap() ? 366 : 365);
}

bool RecurrenceFilter::admitsWeekNumber(const year_month_day& date, local_days day) const {
    std::chrono::year weekYear = date.year();
    if (day < firstWeekStart(weekYear, rule_.weekStart)) {
        --weekYear;
    } else if (day >= firstWeekStart(weekYear + std::chrono::years(1), rule_.weekStart)) {
        ++weekYear;
    }
    const local_days first = firstWeekStart(weekYear, rule_.weekStart);
    const local_days next = firstWeekStart(weekYear + std::chrono::years(1), rule_.weekStart);
    return containsPosition(rule_.weekNumbers, (day - first).count() / 7,
                            (next - first).count() / 7);
}

} // namespace quillet
