#pragma once

#include "platform/Event.h"

#include <memory>
#include <utility>

namespace quillet::test {

[[nodiscard]] inline std::shared_ptr<const StoreCalendar> calendarNamed(const QString& identifier) {
    return std::make_shared<const StoreCalendar>(
        StoreCalendar{.calendarIdentifier = identifier, .title = identifier, .colorName = {}});
}

[[nodiscard]] inline Event timedEvent(Instant start, Instant end, const QString& calendar = "work",
                                      const QString& title = "Meeting") {
    EventDetails details;
    details.calendar = calendarNamed(calendar);
    details.title = title;
    details.eventIdentifier = title + "@test";
    return {start, end, Instant(), std::make_shared<const EventDetails>(std::move(details))};
}

[[nodiscard]] inline Event allDayEvent(Instant start, Instant end,
                                       const QString& calendar = "work") {
    EventDetails details;
    details.calendar = calendarNamed(calendar);
    details.title = "Away";
    details.eventIdentifier = "away@test";
    details.isAllDay = true;
    return {start, end, Instant(), std::make_shared<const EventDetails>(std::move(details))};
}

} // namespace quillet::test
