#include "eventtable/EventOrder.h"

#include "eventtable/EventColumns.h"
#include "eventtable/TextRanks.h"

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <type_traits>
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

} // namespace

struct EventOrder::Known {
    const EventFields& fields;
    const CalendarArithmetic& calendar;
    const Collator& collator;
    LocalDays days;
    std::map<const EventColumn*, TextRanks> ranks;

    void sort(const EventColumn& column, SortDirection direction, const Events& events, Rows& rows);
};

void EventOrder::Known::sort(const EventColumn& column, SortDirection direction,
                             const Events& events, Rows& rows) {
    EventKeys numbers(fields.billing(), calendar, days);
    const auto byKey = [&](auto key) {
        if constexpr (std::is_same_v<decltype(key), StoredText>) {
            const auto texts =
                keysOf(events, rows, [&](const Event& event) { return &key(event); });
            TextRanks& known = ranks.try_emplace(&column, collator).first->second;
            sortByRank(known.ranksOf(texts), direction, rows);
        } else {
            sortBy(keysOf(events, rows, [&](const Event& event) { return (numbers.*key)(event); }),
                   direction, rows);
        }
    };
    std::visit(byKey, column.order);
}

EventOrder::EventOrder(const EventFields& fields, const CalendarArithmetic& calendar,
                       const Collator& collator)
    : known_(std::make_unique<Known>(Known{.fields = fields,
                                           .calendar = calendar,
                                           .collator = collator,
                                           .days = LocalDays(calendar),
                                           .ranks = {}})) {}

EventOrder::~EventOrder() = default;

void EventOrder::followZoneChange() {
    known_->days.forget();
}

ListController<Event>::Sorter EventOrder::sorter(const QString& columnIdentifier,
                                                 SortDirection direction) {
    return [&known = *known_, &column = eventColumn(columnIdentifier),
            direction](const Events& events, Rows& rows) {
        if (!rows.empty()) {
            known.sort(column, direction, events, rows);
        }
    };
}

} // namespace quillet
