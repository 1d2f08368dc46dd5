#include "eventtable/EventKeys.h"

#include "eventdata/EventFigures.h"

#include <chrono>
#include <limits>

namespace quillet {

namespace {

/// Order is all that the nearest double must keep.
double orderOf(const Decimal& value) {
    return value.isNaN() ? -std::numeric_limits<double>::infinity() : value.toDouble();
}

} // namespace

EventKeys::EventKeys(const BillingSettings& billing, const CalendarArithmetic& calendar,
                     LocalDays& days)
    : billing_(billing)
    , calendar_(calendar)
    , days_(days) {}

int EventKeys::daysIntoTheWeek(Instant instant) {
    return (days_.weekday(instant) - calendar_.firstWeekday() + 7) % 7;
}

int EventKeys::endWeekday(const Event& event) {
    const auto end = std::chrono::floor<std::chrono::seconds>(event.endDate);
    return daysIntoTheWeek(end - std::chrono::seconds(days_.secondsOfDay(end) % 60 + 1));
}

std::int64_t EventKeys::minutes(const Event& event) {
    return billableMinutes(event, billing_);
}

double EventKeys::rate(const Event& event) {
    return orderOf(billableRate(event, billing_));
}

double EventKeys::cost(const Event& event) {
    const std::int64_t minutes = billableMinutes(event, billing_);
    const auto key = std::pair(event.details->calendar.get(), minutes);
    const auto found = costs_.constFind(key);
    if (found != costs_.constEnd()) {
        return *found;
    }
    const auto cost = billableCost(minutes, billableRate(event, billing_), billing_);
    return *costs_.insert(key, orderOf(cost.value_or(Decimal())));
}

} // namespace quillet
