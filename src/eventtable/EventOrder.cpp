#include "eventtable/EventOrder.h"

#include "eventdata/EventFigures.h"
#include "eventtable/LocalDays.h"
#include "eventtable/TextRanks.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <numeric>
#include <utility>

namespace quillet {

namespace {

using Rows = std::vector<std::size_t>;
using Events = std::vector<Event>;

/// Sorts rows by the keys at their positions, stably.
template <typename Key>
void sortBy(const std::vector<Key>& keys, SortDirection direction, Rows& rows) {
    std::vector<std::pair<Key, std::size_t>> keyed;
    keyed.reserve(rows.size());
    for (std::size_t position = 0; position < rows.size(); ++position) {
        keyed.emplace_back(keys[position], rows[position]);
    }
    const auto key = &std::pair<Key, std::size_t>::first;
    if (direction == SortDirection::Ascending) {
        std::ranges::stable_sort(keyed, std::less<>(), key);
    } else {
        std::ranges::stable_sort(keyed, std::greater<>(), key);
    }
    std::ranges::transform(keyed, rows.begin(), &std::pair<Key, std::size_t>::second);
}

/// The same where the keys are small numbers, in two passes over them.
void sortByRank(const std::vector<std::uint32_t>& ranks, SortDirection direction, Rows& rows) {
    const std::uint32_t highest = std::ranges::max(ranks);
    const auto placeOf = [&](std::uint32_t rank) {
        return direction == SortDirection::Ascending ? rank : highest - rank;
    };
    std::vector<std::size_t> next(std::size_t{highest} + 2);
    for (const std::uint32_t rank : ranks) {
        ++next[placeOf(rank) + 1];
    }
    std::partial_sum(next.begin(), next.end(), next.begin());
    Rows sorted(rows.size());
    for (std::size_t position = 0; position < rows.size(); ++position) {
        sorted[next[placeOf(ranks[position])]++] = rows[position];
    }
    rows = std::move(sorted);
}

template <typename KeyOf>
auto keysOf(const Events& events, const Rows& rows, KeyOf keyOf) {
    std::vector<decltype(keyOf(events.front()))> keys;
    keys.reserve(rows.size());
    for (const std::size_t row : rows) {
        keys.push_back(keyOf(events[row]));
    }
    return keys;
}

/// Order is all that the nearest double must keep; not-a-number stands with the missing values.
double orderOf(const Decimal& value) {
    return value.isNaN() ? -std::numeric_limits<double>::infinity() : value.toDouble();
}

/// The costs of events, each worked out once for a calendar and a number of minutes.
class Costs {
public:
    explicit Costs(const BillingSettings& billing)
        : billing_(billing) {}

    [[nodiscard]] double of(const Event& event) {
        const std::int64_t minutes = billableMinutes(event, billing_);
        const auto key = std::pair(event.details->calendar.get(), minutes);
        const auto found = known_.constFind(key);
        if (found != known_.constEnd()) {
            return *found;
        }
        const auto cost = billableCost(minutes, billableRate(event, billing_), billing_);
        return *known_.insert(key, orderOf(cost.value_or(Decimal())));
    }

private:
    const BillingSettings& billing_;
    QHash<std::pair<const StoreCalendar*, std::int64_t>, double> known_;
};

const QString& textOf(const Event& event, const QString& column) {
    const EventDetails& details = *event.details;
    if (column == u"calendar") {
        return details.calendar->title;
    }
    if (column == u"title") {
        return details.title;
    }
    if (column == u"notes") {
        return details.notes;
    }
    return column == u"url" ? details.url : details.location;
}

} // namespace

struct EventOrder::Keys {
    const EventFields& fields;
    const CalendarArithmetic& calendar;
    const Collator& collator;
    LocalDays days;
    /// By column.
    std::map<QString, TextRanks> ranks;

    [[nodiscard]] int daysIntoTheWeek(Instant instant) {
        return (days.weekday(instant) - calendar.firstWeekday() + 7) % 7;
    }
    /// As the field of that name, by the days that are known.
    [[nodiscard]] Instant adjustedEndDate(const Event& event) {
        const auto end = std::chrono::floor<std::chrono::seconds>(event.endDate);
        return end - std::chrono::seconds(days.secondsOfDay(end) % 60 + 1);
    }
    /// Puts the rows into order by what is a number of some kind; false for a column of texts.
    [[nodiscard]] bool sortByNumber(const QString& column, SortDirection direction,
                                    const Events& events, Rows& rows);
    void sortByText(const QString& column, SortDirection direction, const Events& events,
                    Rows& rows);
};

bool EventOrder::Keys::sortByNumber(const QString& column, SortDirection direction,
                                    const Events& events, Rows& rows) {
    const auto sort = [&](auto keyOf) {
        sortBy(keysOf(events, rows, std::move(keyOf)), direction, rows);
    };
    const auto instant = column == u"date" || column == u"start" || column == u"weekday"
                             ? &Event::startDate
                             : &Event::endDate;
    if (column == u"date" || column == u"endDate") {
        sort([&](const Event& event) { return event.*instant; });
    } else if (column == u"start" || column == u"end") {
        sort([&](const Event& event) { return days.secondsOfDay(event.*instant); });
    } else if (column == u"weekday") {
        sort([&](const Event& event) { return daysIntoTheWeek(event.startDate); });
    } else if (column == u"endWeekday") {
        sort([&](const Event& event) { return daysIntoTheWeek(adjustedEndDate(event)); });
    } else if (column == u"hours" || column == u"minutes" || column == u"duration") {
        sort([&](const Event& event) { return billableMinutes(event, fields.billing()); });
    } else if (column == u"rate") {
        sort([&](const Event& event) { return orderOf(billableRate(event, fields.billing())); });
    } else if (column == u"cost") {
        sort([costs = Costs(fields.billing())](const Event& event) mutable {
            return costs.of(event);
        });
    } else {
        return false;
    }
    return true;
}

void EventOrder::Keys::sortByText(const QString& column, SortDirection direction,
                                  const Events& events, Rows& rows) {
    const auto texts =
        keysOf(events, rows, [&](const Event& event) { return &textOf(event, column); });
    TextRanks& known = ranks.try_emplace(column, collator).first->second;
    sortByRank(known.ranksOf(texts), direction, rows);
}

EventOrder::EventOrder(const EventFields& fields, const CalendarArithmetic& calendar,
                       const Collator& collator)
    : keys_(std::make_unique<Keys>(Keys{.fields = fields,
                                        .calendar = calendar,
                                        .collator = collator,
                                        .days = LocalDays(calendar),
                                        .ranks = {}})) {}

EventOrder::~EventOrder() = default;

void EventOrder::followZoneChange() {
    keys_->days.forget();
}

ListController<Event>::Sorter EventOrder::sorter(const QString& columnIdentifier,
                                                 SortDirection direction) {
    return
        [&keys = *keys_, column = columnIdentifier, direction](const Events& events, Rows& rows) {
            if (!rows.empty() && !keys.sortByNumber(column, direction, events, rows)) {
                keys.sortByText(column, direction, events, rows);
            }
        };
}

} // namespace quillet
