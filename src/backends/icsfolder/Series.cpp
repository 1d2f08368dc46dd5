#include "backends/icsfolder/Series.h"

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::seconds;
using std::chrono::sys_seconds;

namespace {

seconds span(const EventLength& length) {
    return length.days + length.seconds;
}

/// The original starts among which the answer lies, in wall-clock time.
struct LocalRange {
    LocalSeconds from;
    LocalSeconds to;
};

LocalRange rangeFor(const Series& series, Instant from, Instant to) {
    seconds longest = span(series.length);
    seconds forward{0};
    seconds backward{0};
    for (const auto& extra : series.extras) {
        longest = std::max(longest, extra.length ? span(*extra.length) : seconds(0));
    }
    for (const auto& variation : series.variations) {
        longest = std::max(longest, span(variation.length));
        forward = std::max(forward, variation.shift);
        backward = std::max(backward, -variation.shift);
    }
    // Two days cover every offset from UTC.
    const auto first = std::chrono::floor<seconds>(from) - days(2) - longest - forward;
    const auto last = std::chrono::floor<seconds>(to) + days(2) + backward;
    return {LocalSeconds(first.time_since_epoch()), LocalSeconds(last.time_since_epoch())};
}

void sortUniquely(std::vector<LocalSeconds>& times) {
    std::ranges::sort(times);
    times.erase(std::unique(times.begin(), times.end()), times.end());
}

std::vector<LocalSeconds> ruledStarts(const Series& series, const LocalRange& range,
                                      WorkBudget& budget) {
    std::vector<LocalSeconds> starts;
    for (const RecurrenceRule& rule : series.rules) {
        expandRule(rule, series.start, range.from, range.to, budget, starts);
    }
    // The event's own start is an occurrence even where it does not fit the rule.
    if (series.start >= range.from && series.start < range.to) {
        starts.push_back(series.start);
    }
    sortUniquely(starts);
    if (!series.exceptionRules.empty()) {
        std::vector<LocalSeconds> exceptions;
        for (const RecurrenceRule& rule : series.exceptionRules) {
            expandRule(rule, series.start, range.from, range.to, budget, exceptions);
        }
        sortUniquely(exceptions);
        std::erase_if(starts, [&](LocalSeconds start) {
            return std::ranges::binary_search(exceptions, start);
        });
    }
    return starts;
}

const Series::Variation* variationAt(const Series& series, sys_seconds original) {
    const auto next =
        std::ranges::upper_bound(series.variations, original, {}, &Series::Variation::from);
    return next == series.variations.begin() ? nullptr : &*std::prev(next);
}

/// Makes the occurrences of one series, each original start once. They come in their order.
class Occurrences {
public:
    Occurrences(const Series& series, Instant from, Instant to, EventList& events)
        : series_(series)
        , from_(from)
        , to_(to)
        , events_(events) {}

    void add(LocalSeconds local, sys_seconds original, const EventLength& length) {
        if (original == last_ || isExcluded(local, original)) {
            return;
        }
        last_ = original;
        const Series::Variation* variation = variationAt(series_, original);
        if (variation != nullptr && !variation->details) {
            return;
        }
        Event event{original, {}, original, series_.details};
        if (variation == nullptr) {
            event.endDate = endOf(local, length, *series_.zone);
        } else {
            const LocalSeconds moved = local + variation->shift;
            event.startDate = variation->zone->toInstant(moved);
            event.endDate = endOf(moved, variation->length, *variation->zone);
            event.details = variation->details;
        }
        if (isWithin(event, from_, to_)) {
            events_.push_back(std::move(event));
        }
    }

private:
    [[nodiscard]] bool isExcluded(LocalSeconds local, sys_seconds original) const {
        return series_.excluded.contain(local, original) ||
               (series_.replaced && series_.replaced->contain(local, original));
    }

    const Series& series_;
    Instant from_;
    Instant to_;
    EventList& events_;
    sys_seconds last_ = sys_seconds::min();
};

} // namespace

void Exclusions::sort() {
    std::ranges::sort(instants);
    std::ranges::sort(days);
}

bool Exclusions::contain(LocalSeconds local, sys_seconds instant) const {
    return std::ranges::binary_search(instants, instant) ||
           (!days.empty() &&
            std::ranges::binary_search(days, std::chrono::floor<std::chrono::days>(local)));
}

Instant endOf(LocalSeconds start, const EventLength& length, const ZoneRules& zone) {
    return zone.toInstant(start + length.days) + length.seconds;
}

void appendOccurrences(const Series& series, Instant from, Instant to, WorkBudget& budget,
                       EventList& events) {
    const LocalRange range = rangeFor(series, from, to);
    struct Start {
        LocalSeconds local;
        EventLength length;
        sys_seconds original = {};
    };
    std::vector<Start> starts;
    // Extras come first, so that one which names a start of the rule gives it its length.
    for (const auto& extra : series.extras) {
        if (extra.start >= range.from && extra.start < range.to) {
            starts.push_back({extra.start, extra.length.value_or(series.length)});
        }
    }
    const bool hasExtras = !starts.empty();
    for (const LocalSeconds start : ruledStarts(series, range, budget)) {
        starts.push_back({start, series.length});
    }
    if (hasExtras) {
        std::ranges::stable_sort(starts, {}, &Start::local);
    }
    for (Start& start : starts) {
        start.original = series.zone->toInstant(start.local);
    }
    // Where the clock jumps, wall-clock times of two hours are the same instants once more.
    if (!std::ranges::is_sorted(starts, {}, &Start::original)) {
        std::ranges::stable_sort(starts, {}, &Start::original);
    }
    Occurrences occurrences(series, from, to, events);
    for (const Start& start : starts) {
        occurrences.add(start.local, start.original, start.length);
    }
}

} // namespace quillet
