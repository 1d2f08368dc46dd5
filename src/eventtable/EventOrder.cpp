#include "eventtable/EventOrder.h"

#include "eventdata/EventFigures.h"

#include <algorithm>
#include <functional>
#include <limits>

namespace quillet {

namespace {

/// Computes the key of every event once and sorts by those.
template <typename Key>
ListController<Event>::Sorter sorterBy(std::function<Key(const Event&)> keyOf,
                                       SortDirection direction) {
    return [keyOf = std::move(keyOf), direction](const std::vector<Event>& content,
                                                 std::vector<std::size_t>& rows) {
        std::vector<std::pair<Key, std::size_t>> keyed;
        keyed.reserve(rows.size());
        for (const std::size_t row : rows) {
            keyed.emplace_back(keyOf(content[row]), row);
        }
        const auto key = &std::pair<Key, std::size_t>::first;
        if (direction == SortDirection::Ascending) {
            std::ranges::stable_sort(keyed, std::less<>(), key);
        } else {
            std::ranges::stable_sort(keyed, std::greater<>(), key);
        }
        std::ranges::transform(keyed, rows.begin(), &std::pair<Key, std::size_t>::second);
    };
}

ListController<Event>::Sorter sorterByText(QString EventDetails::* text, SortDirection direction) {
    return sorterBy<QString>(
        [text](const Event& event) { return ((*event.details).*text).toCaseFolded(); }, direction);
}

/// Order is all that the nearest double must keep; not-a-number stands with the missing values.
double orderOf(const Decimal& value) {
    return value.isNaN() ? -std::numeric_limits<double>::infinity() : value.toDouble();
}

int daysIntoTheWeek(Instant instant, const CalendarArithmetic& calendar) {
    return (calendar.components(instant).weekday - calendar.firstWeekday() + 7) % 7;
}

} // namespace

ListController<Event>::Sorter eventSorter(const QString& column, SortDirection direction,
                                          const EventFields& fields,
                                          const CalendarArithmetic& calendar) {
    if (column == u"date" || column == u"endDate") {
        const auto date = column == u"date" ? &Event::startDate : &Event::endDate;
        return sorterBy<Instant>([date](const Event& event) { return event.*date; }, direction);
    }
    if (column == u"start" || column == u"end") {
        const auto date = column == u"start" ? &Event::startDate : &Event::endDate;
        return sorterBy<double>(
            [date, &fields](const Event& event) {
                return fields.timeIntervalSinceStartOfDay(event.*date);
            },
            direction);
    }
    if (column == u"hours" || column == u"minutes" || column == u"duration") {
        return sorterBy<std::int64_t>(
            [&fields](const Event& event) { return billableMinutes(event, fields.billing()); },
            direction);
    }
    if (column == u"rate") {
        return sorterBy<double>(
            [&fields](const Event& event) {
                return orderOf(billableRate(event, fields.billing()));
            },
            direction);
    }
    if (column == u"cost") {
        return sorterBy<double>(
            [&fields](const Event& event) {
                return orderOf(figures(event, fields.billing()).cost.value_or(Decimal()));
            },
            direction);
    }
    if (column == u"weekday" || column == u"endWeekday") {
        const bool isStart = column == u"weekday";
        return sorterBy<int>(
            [isStart, &fields, &calendar](const Event& event) {
                return daysIntoTheWeek(isStart ? event.startDate : fields.adjustedEndDate(event),
                                       calendar);
            },
            direction);
    }
    if (column == u"calendar") {
        return sorterBy<QString>(
            [](const Event& event) { return event.details->calendar->title.toCaseFolded(); },
            direction);
    }
    if (column == u"title") {
        return sorterByText(&EventDetails::title, direction);
    }
    if (column == u"notes") {
        return sorterByText(&EventDetails::notes, direction);
    }
    return sorterByText(column == u"url" ? &EventDetails::url : &EventDetails::location, direction);
}

} // namespace quillet
