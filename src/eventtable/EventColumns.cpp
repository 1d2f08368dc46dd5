#include "eventtable/EventColumns.h"

#include <algorithm>

namespace quillet {

namespace {

// The title key of the start weekday does not follow its stem; stored settings depend on that.
constexpr std::array<EventColumn, 16> columns{{
    {"date", "date", "dateColumnTitle", "Start Date", "isDateColumn", true},
    {"hours", "hours", "hoursColumnTitle", "Hours", "isHoursColumn", true},
    {"title", "title", "titleColumnTitle", "Title", "isTitleColumn", true},
    {"notes", "notes", "notesColumnTitle", "Notes", "isNotesColumn", false},
    {"url", "url", "urlColumnTitle", "URL", "isUrlColumn", false},
    {"location", "location", "locationColumnTitle", "Location", "isLocationColumn", false},
    {"weekday", "weekday", "startWeekdayColumnTitle", "Start Weekday", "isWeekdayColumn", false},
    {"endWeekday", "endWeekday", "endWeekdayColumnTitle", "End Weekday", "isEndWeekdayColumn",
     false},
    {"cost", "cost", "costColumnTitle", "Cost", "isCostColumn", true},
    {"start", "startTime", "startTimeColumnTitle", "Start Time", "isStartTimeColumn", false},
    {"end", "endTime", "endTimeColumnTitle", "End Time", "isEndTimeColumn", false},
    {"endDate", "endDate", "endDateColumnTitle", "End Date", "isEndDateColumn", false},
    {"calendar", "calendar", "calendarColumnTitle", "Calendar", "isCalendarColumn", true},
    {"rate", "rate", "rateColumnTitle", "Rate", "isRateColumn", false},
    {"duration", "duration", "durationColumnTitle", "Duration", "isHoursColumn", true},
    {"minutes", "minutes", "minutesColumnTitle", "Minutes", "isHoursColumn", true},
}};

} // namespace

std::span<const EventColumn, 16> eventColumns() {
    return columns;
}

const EventColumn& eventColumn(const QString& identifier) {
    const auto found = std::ranges::find_if(columns, [&](const EventColumn& column) {
        return identifier == QLatin1StringView(column.identifier);
    });
    Q_ASSERT(found != columns.end());
    return *found;
}

} // namespace quillet
