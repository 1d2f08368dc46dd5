#pragma once

#include "eventdata/BillingSettings.h"
#include "eventtable/LocalDays.h"
#include "platform/Event.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <utility>
#include <variant>

namespace quillet {

/// What events are sorted by where that is a number of some kind. For one sorting, while settings
/// and zone stay as they are.
class EventKeys {
public:
    /// All must outlive this. The days are those of the calendar, which is the user's.
    EventKeys(const BillingSettings& billing, const CalendarArithmetic& calendar, LocalDays& days);

    [[nodiscard]] Instant startDate(const Event& event) { return event.startDate; }
    [[nodiscard]] Instant endDate(const Event& event) { return event.endDate; }
    /// Seconds of the day.
    [[nodiscard]] int startTime(const Event& event) { return days_.secondsOfDay(event.startDate); }
    [[nodiscard]] int endTime(const Event& event) { return days_.secondsOfDay(event.endDate); }
    /// Days from the first day of the week.
    [[nodiscard]] int startWeekday(const Event& event) { return daysIntoTheWeek(event.startDate); }
    /// Of the event's last second: see EventFields::adjustedEndDate().
    [[nodiscard]] int endWeekday(const Event& event);
    [[nodiscard]] std::int64_t minutes(const Event& event);
    /// Not-a-number stands with the missing values.
    [[nodiscard]] double rate(const Event& event);
    [[nodiscard]] double cost(const Event& event);

private:
    [[nodiscard]] int daysIntoTheWeek(Instant instant);

    const BillingSettings& billing_;
    const CalendarArithmetic& calendar_;
    LocalDays& days_;
    /// Each worked out once for a calendar and a number of minutes.
    QHash<std::pair<const StoreCalendar*, std::int64_t>, double> costs_;
};

/// A text of an event as the store has it; null when it is missing.
using StoredText = const QString& (*)(const Event& event);

/// What a column is sorted by: one of the numbers above, or a text, whose order the language knows.
using EventKey =
    std::variant<Instant (EventKeys::*)(const Event&), int (EventKeys::*)(const Event&),
                 std::int64_t (EventKeys::*)(const Event&), double (EventKeys::*)(const Event&),
                 StoredText>;

} // namespace quillet
