#include "insight/DayTable.h"

#include <algorithm>

namespace quillet {

namespace {

/// That time of the day; a clock change may move it.
Instant timeOfDay(Instant dayStart, std::chrono::minutes time, const CalendarArithmetic& calendar) {
    DateComponents fields = calendar.components(dayStart);
    fields.hour = 0;
    fields.minute = static_cast<int>(time.count());
    fields.second = 0;
    return calendar.instant(fields);
}

} // namespace

DayTable::DayTable(const Slices& days, const DayKinds& kinds, std::chrono::minutes nightStart,
                   std::chrono::minutes nightEnd, const CalendarArithmetic& calendar) {
    days_.reserve(days.count());
    for (std::size_t index = 0; index < days.count(); ++index) {
        Day day;
        day.start = days.start(index);
        day.end = index + 1 < days.count()
                      ? days.start(index + 1)
                      : calendar.startOfDay(calendar.add(day.start, {.days = 1}));
        day.kind = kinds.of(day.start);
        day.morning = timeOfDay(day.start, nightEnd, calendar);
        day.evening = timeOfDay(day.start, nightStart, calendar);
        days_.push_back(day);
    }
}

std::span<const DayTable::Day> DayTable::touched(Instant start, Instant end) const {
    const auto first = std::ranges::upper_bound(days_, start, {}, &Day::end);
    const auto last = std::ranges::lower_bound(days_, end, {}, &Day::start);
    return first < last ? std::span(first, last) : std::span<const Day>();
}

} // namespace quillet
