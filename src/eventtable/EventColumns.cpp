#include "eventtable/EventColumns.h"

#include "eventdata/Duration.h"
#include "platform/Settings.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillet {

namespace {

template <QString EventDetails::* text>
const QString& own(const Event& event) {
    return (*event.details).*text;
}

const QString& calendarTitle(const Event& event) {
    return event.details->calendar->title;
}

QString sumOfHours(const EventTotals& totals, const LocaleFormats& formats) {
    return formats.number(totals.sumHours());
}

QString sumOfMinutes(const EventTotals& totals, const LocaleFormats& formats) {
    return formats.number(totals.sumMinutes());
}

QString sumOfDuration(const EventTotals& totals, const LocaleFormats&) {
    return makeDurationFromMinutes(totals.sumMinutes().toInteger());
}

QString sumOfCost(const EventTotals& totals, const LocaleFormats& formats) {
    return formats.currency(totals.sumCost().value_or(Decimal()));
}

// The title of the start weekday does not follow its stem; stored settings depend on that.
constexpr auto columns = std::to_array<EventColumn>({
    {.identifier = "date",
     .stem = "date",
     .title = settings::dateColumnTitle,
     .visibility = settings::isDateColumn,
     .placement = {.widthPoints = 80, .index = 0, .isHidden = false},
     .kind = ColumnKind::Date,
     .text = &EventTexts::startDate,
     .order = &EventKeys::startDate},
    {.identifier = "hours",
     .stem = "hours",
     .title = settings::hoursColumnTitle,
     .visibility = settings::isHoursColumn,
     .placement = {.widthPoints = 70, .index = 4, .isHidden = false},
     .kind = ColumnKind::Number,
     .text = &EventTexts::hours,
     .order = &EventKeys::minutes,
     .sum = sumOfHours,
     .timeType = TimeType::Hours},
    {.identifier = "title",
     .stem = "title",
     .title = settings::titleColumnTitle,
     .visibility = settings::isTitleColumn,
     .placement = {.widthPoints = 240, .index = 3, .isHidden = false},
     .kind = ColumnKind::Text,
     .text = own<&EventDetails::title>,
     .order = own<&EventDetails::title>,
     .quotes = &settings::isCSVQuotesForTitle},
    {.identifier = "notes",
     .stem = "notes",
     .title = settings::notesColumnTitle,
     .visibility = settings::isNotesColumn,
     .placement = {.widthPoints = 128, .index = 14, .isHidden = true},
     .kind = ColumnKind::Text,
     .text = own<&EventDetails::notes>,
     .order = own<&EventDetails::notes>,
     .quotes = &settings::isCSVQuotesForNote},
    {.identifier = "url",
     .stem = "url",
     .title = settings::urlColumnTitle,
     .visibility = settings::isUrlColumn,
     .placement = {.widthPoints = 123, .index = 7, .isHidden = true},
     .kind = ColumnKind::Link,
     .text = own<&EventDetails::url>,
     .order = own<&EventDetails::url>},
    {.identifier = "location",
     .stem = "location",
     .title = settings::locationColumnTitle,
     .visibility = settings::isLocationColumn,
     .placement = {.widthPoints = 119, .index = 8, .isHidden = true},
     .kind = ColumnKind::Text,
     .text = own<&EventDetails::location>,
     .order = own<&EventDetails::location>,
     .quotes = &settings::isCSVQuotesForLocation},
    {.identifier = "weekday",
     .stem = "weekday",
     .title = settings::startWeekdayColumnTitle,
     .visibility = settings::isWeekdayColumn,
     .placement = {.widthPoints = 105, .index = 11, .isHidden = true},
     .kind = ColumnKind::Weekday,
     .text = &EventTexts::startWeekday,
     .order = &EventKeys::startWeekday},
    {.identifier = "endWeekday",
     .stem = "endWeekday",
     .title = settings::endWeekdayColumnTitle,
     .visibility = settings::isEndWeekdayColumn,
     .placement = {.widthPoints = 105, .index = 15, .isHidden = true},
     .kind = ColumnKind::Weekday,
     .text = &EventTexts::endWeekday,
     .order = &EventKeys::endWeekday},
    {.identifier = "cost",
     .stem = "cost",
     .title = settings::costColumnTitle,
     .visibility = settings::isCostColumn,
     .placement = {.widthPoints = 86, .index = 5, .isHidden = true},
     .kind = ColumnKind::Money,
     .text = &EventTexts::cost,
     .order = &EventKeys::cost,
     .sum = sumOfCost},
    {.identifier = "start",
     .stem = "startTime",
     .title = settings::startTimeColumnTitle,
     .visibility = settings::isStartTimeColumn,
     .placement = {.widthPoints = 80, .index = 9, .isHidden = true},
     .kind = ColumnKind::Time,
     .text = &EventTexts::startTime,
     .order = &EventKeys::startTime},
    {.identifier = "end",
     .stem = "endTime",
     .title = settings::endTimeColumnTitle,
     .visibility = settings::isEndTimeColumn,
     .placement = {.widthPoints = 80, .index = 10, .isHidden = true},
     .kind = ColumnKind::Time,
     .text = &EventTexts::endTime,
     .order = &EventKeys::endTime},
    {.identifier = "endDate",
     .stem = "endDate",
     .title = settings::endDateColumnTitle,
     .visibility = settings::isEndDateColumn,
     .placement = {.widthPoints = 86, .index = 12, .isHidden = true},
     .kind = ColumnKind::Date,
     .text = &EventTexts::adjustedEndDate,
     .order = &EventKeys::endDate},
    {.identifier = "calendar",
     .stem = "calendar",
     .title = settings::calendarColumnTitle,
     .visibility = settings::isCalendarColumn,
     .placement = {.widthPoints = 89, .index = 1, .isHidden = false},
     .kind = ColumnKind::Text,
     .text = &EventTexts::calendarTitle,
     .order = calendarTitle,
     .quotes = &settings::isCSVQuotesForCalendar,
     .hasCalendarDot = true},
    {.identifier = "rate",
     .stem = "rate",
     .title = settings::rateColumnTitle,
     .visibility = settings::isRateColumn,
     .placement = {.widthPoints = 86, .index = 14, .isHidden = true},
     .kind = ColumnKind::Money,
     .text = &EventTexts::rate,
     .order = &EventKeys::rate},
    {.identifier = "duration",
     .stem = "duration",
     .title = settings::durationColumnTitle,
     .visibility = settings::isHoursColumn,
     .placement = {.widthPoints = 70, .index = 4, .isHidden = true},
     .kind = ColumnKind::Duration,
     .text = &EventTexts::duration,
     .order = &EventKeys::minutes,
     .sum = sumOfDuration,
     .timeType = TimeType::Duration},
    {.identifier = "minutes",
     .stem = "minutes",
     .title = settings::minutesColumnTitle,
     .visibility = settings::isHoursColumn,
     .placement = {.widthPoints = 70, .index = 4, .isHidden = true},
     .kind = ColumnKind::Number,
     .text = &EventTexts::minutes,
     .order = &EventKeys::minutes,
     .sum = sumOfMinutes,
     .timeType = TimeType::Minutes},
});

using Order = std::array<const EventColumn*, columns.size()>;

/// Does not compile unless every column is named, once.
consteval Order ordered(const std::array<std::string_view, columns.size()>& identifiers) {
    Order order{};
    for (std::size_t place = 0; place < order.size(); ++place) {
        order.at(place) = std::ranges::find(columns, identifiers.at(place), [](const auto& column) {
            return std::string_view(column.identifier);
        });
        if (order.at(place) == columns.end() ||
            std::ranges::count(identifiers, identifiers.at(place)) != 1) {
            throw "a column is missing";
        }
    }
    return order;
}

// Both orders are older than the table's, and observers of the settings can tell.
constexpr Order orderOfTitles =
    ordered({"title", "hours", "minutes", "duration", "date", "endDate", "notes", "location", "url",
             "start", "end", "weekday", "endWeekday", "calendar", "rate", "cost"});
constexpr Order orderOfVisibility =
    ordered({"date", "hours", "minutes", "duration", "title", "notes", "url", "location", "weekday",
             "cost", "rate", "start", "end", "endDate", "calendar", "endWeekday"});

} // namespace

std::span<const EventColumn> eventColumns() {
    return columns;
}

std::span<const EventColumn* const> columnsInOrderOfTitles() {
    return orderOfTitles;
}

std::span<const EventColumn* const> columnsInOrderOfVisibility() {
    return orderOfVisibility;
}

const EventColumn* findEventColumn(const QString& identifier) {
    const auto* const found = std::ranges::find_if(columns, [&](const EventColumn& column) {
        return identifier == QLatin1StringView(column.identifier);
    });
    return found == columns.end() ? nullptr : found;
}

const EventColumn& eventColumn(const QString& identifier) {
    const EventColumn* const column = findEventColumn(identifier);
    Q_ASSERT(column != nullptr);
    return *column;
}

} // namespace quillet
