#include "insight/Slices.h"

#include <algorithm>
#include <chrono>

namespace quillet {

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::days longestPlainPeriod{4000};
constexpr std::chrono::days longestPeriod{36'525};
constexpr int daysOfAWeek = 7;

struct Bounds {
    Instant start;
    Instant end;
};

/// Whether [start, end) is no longer than that; the difference of extreme instants does not fit.
bool isWithin(const Bounds& bounds, std::chrono::days length) {
    return bounds.end <= bounds.start || bounds.start > Instant::max() - length ||
           bounds.end <= bounds.start + length;
}

/// Where the days to cut lie, [start, end), not yet moved to the bounds of days.
Bounds boundsOf(const BillingSettings& billing, std::span<const Event> events) {
    Bounds bounds{.start = billing.periodStart, .end = billing.periodEnd};
    if (!isWithin(bounds, longestPlainPeriod)) {
        Bounds extent{.start = Instant::max(), .end = Instant::min()};
        for (const Event& event : events) {
            extent.start = std::min(extent.start, event.startDate);
            extent.end = std::max({extent.end, event.startDate, event.endDate});
        }
        if (events.empty()) {
            extent = {};
        }
        bounds.start = std::max(bounds.start, extent.start);
        bounds.end = std::min(bounds.end, extent.end);
    }
    if (!isWithin(bounds, longestPeriod)) {
        bounds.end = bounds.start + longestPeriod;
    }
    return bounds;
}

Instant firstOfWeek(Instant dayStart, const CalendarArithmetic& calendar) {
    const int weekday = weekdayOf(dayStart, calendar);
    const int daysSince = (weekday - calendar.firstWeekday() + daysOfAWeek) % daysOfAWeek;
    return calendar.startOfDay(calendar.add(dayStart, {.days = -daysSince}));
}

/// The start of the slice that follows the one which holds the day.
Instant nextStart(Instant dayStart, SliceUnit unit, const CalendarArithmetic& calendar) {
    switch (unit) {
    case SliceUnit::Week:
        return calendar.startOfDay(
            calendar.add(firstOfWeek(dayStart, calendar), {.days = daysOfAWeek}));
    case SliceUnit::Month: {
        const DateComponents fields = calendar.components(dayStart);
        return calendar.startOfDay(
            calendar.instant({.year = fields.year, .month = fields.month + 1, .day = 1}));
    }
    case SliceUnit::Day:
        break;
    }
    return calendar.startOfDay(calendar.add(dayStart, {.days = 1}));
}

} // namespace

Slices::Slices(SliceUnit unit, const BillingSettings& billing, std::span<const Event> events,
               const CalendarArithmetic& calendar)
    : unit_(unit) {
    const Bounds bounds = boundsOf(billing, events);
    const Instant first = calendar.startOfDay(bounds.start);
    starts_.push_back(first);
    // A period ends 86,400 seconds after its last day began, an hour into the next where that is
    // shorter: the hour is no day of its own.
    Instant next = nextStart(first, unit, calendar);
    while (next + 2h < bounds.end && next > starts_.back()) {
        starts_.push_back(next);
        next = nextStart(next, unit, calendar);
    }
    end_ = std::max(bounds.end, starts_.back());
}

std::size_t Slices::at(Instant instant) const {
    const auto after = std::ranges::upper_bound(starts_, instant);
    return after == starts_.begin() ? 0 : static_cast<std::size_t>(after - starts_.begin()) - 1;
}

int weekdayOf(Instant instant, const CalendarArithmetic& calendar) {
    return calendar.components(instant).weekday;
}

std::size_t daysBetween(Instant start, Instant end) {
    // Half a day absorbs the hours that clock changes add and take.
    const auto span = std::chrono::floor<std::chrono::days>(end - start + 12h);
    return static_cast<std::size_t>(std::max<std::int64_t>(1, span.count()));
}

} // namespace quillet
