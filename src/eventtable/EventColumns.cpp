#include "eventtable/EventColumns.h"

#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

// The title key of the start weekday does not follow its stem; stored settings depend on that.
constexpr std::array<EventColumn, 16> columns{{
    {"date", "date", "dateColumnTitle", localizable("Start Date"), "isDateColumn", true},
    {"hours", "hours", "hoursColumnTitle", localizable("Hours"), "isHoursColumn", true},
    {"title", "title", "titleColumnTitle", localizable("Title"), "isTitleColumn", true},
    {"notes", "notes", "notesColumnTitle", localizable("Notes"), "isNotesColumn", false},
    {"url", "url", "urlColumnTitle", localizable("URL"), "isUrlColumn", false},
    {"location", "location", "locationColumnTitle", localizable("Location"), "isLocationColumn",
     false},
    {"weekday", "weekday", "startWeekdayColumnTitle", localizable("Start Weekday"),
     "isWeekdayColumn", false},
    {"endWeekday", "endWeekday", "endWeekdayColumnTitle", localizable("End Weekday"),
     "isEndWeekdayColumn", false},
    {"cost", "cost", "costColumnTitle", localizable("Cost"), "isCostColumn", true},
    {"start", "startTime", "startTimeColumnTitle", localizable("Start Time"), "isStartTimeColumn",
     false},
    {"end", "endTime", "endTimeColumnTitle", localizable("End Time"), "isEndTimeColumn", false},
    {"endDate", "endDate", "endDateColumnTitle", localizable("End Date"), "isEndDateColumn", false},
    {"calendar", "calendar", "calendarColumnTitle", localizable("Calendar"), "isCalendarColumn",
     true},
    {"rate", "rate", "rateColumnTitle", localizable("Rate"), "isRateColumn", false},
    {"duration", "duration", "durationColumnTitle", localizable("Duration"), "isHoursColumn", true},
    {"minutes", "minutes", "minutesColumnTitle", localizable("Minutes"), "isHoursColumn", true},
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
