#include "eventtable/EventColumns.h"

#include <QtGlobal>

#include <algorithm>

namespace quillet {

const std::array<EventColumn, eventColumnCount>& eventColumns() {
    using Name = EventColumnName;
    // The start-weekday column is irregular: its title key alone says "start".
    static const std::array<EventColumn, eventColumnCount> columns{{
        {Name::Date, "date", "date", "startDate", "dateColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Start Date"), "isDateColumn", true},
        {Name::Hours, "hours", "hours", "hours", "hoursColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Hours"), "isHoursColumn", true},
        {Name::Title, "title", "title", "title", "titleColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Title"), "isTitleColumn", true},
        {Name::Notes, "notes", "notes", "notes", "notesColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Notes"), "isNotesColumn", false},
        {Name::Url, "url", "url", "URL", "urlColumnTitle", QT_TRANSLATE_NOOP("Quillet", "URL"),
         "isUrlColumn", false},
        {Name::Location, "location", "location", "location", "locationColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Location"), "isLocationColumn", false},
        {Name::Weekday, "weekday", "weekday", "startWeekday", "startWeekdayColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Start Weekday"), "isWeekdayColumn", false},
        {Name::EndWeekday, "endWeekday", "endWeekday", "endWeekday", "endWeekdayColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "End Weekday"), "isEndWeekdayColumn", false},
        {Name::Cost, "cost", "cost", "cost", "costColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Cost"), "isCostColumn", true},
        {Name::Start, "start", "startTime", "startTime", "startTimeColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Start Time"), "isStartTimeColumn", false},
        {Name::End, "end", "endTime", "endTime", "endTimeColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "End Time"), "isEndTimeColumn", false},
        {Name::EndDate, "endDate", "endDate", "adjustedEndDate", "endDateColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "End Date"), "isEndDateColumn", false},
        {Name::Calendar, "calendar", "calendar", "calendarTitle", "calendarColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Calendar"), "isCalendarColumn", true},
        {Name::Rate, "rate", "rate", "rate", "rateColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Rate"), "isRateColumn", false},
        {Name::Duration, "duration", "duration", "duration", "durationColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Duration"), "isHoursColumn", true},
        {Name::Minutes, "minutes", "minutes", "minutes", "minutesColumnTitle",
         QT_TRANSLATE_NOOP("Quillet", "Minutes"), "isHoursColumn", true},
    }};
    return columns;
}

const EventColumn& eventColumn(EventColumnName name) {
    return eventColumns().at(static_cast<std::size_t>(name));
}

const EventColumn* eventColumnWithIdentifier(const QString& identifier) {
    const auto found = std::ranges::find(eventColumns(), identifier, &EventColumn::identifier);
    return found == eventColumns().end() ? nullptr : found;
}

} // namespace quillet
