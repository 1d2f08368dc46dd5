#include "backends/icsfolder/CalendarContents.h"

#include "backends/combined/EventOrder.h"

#include <algorithm>
#include <unordered_set>

namespace quillet {

namespace {

/// What the recurrences of one query may cost: about half a second.
constexpr std::int64_t queryBudget = 20'000'000;

void sortForDelivery(EventList& events) {
    if (!std::ranges::is_sorted(events, isDeliveredBefore)) {
        std::ranges::stable_sort(events, isDeliveredBefore);
    }
}

} // namespace

CalendarContents::CalendarContents(EventList events,
                                   std::vector<std::shared_ptr<const Series>> series)
    : events_(std::move(events))
    , series_(std::move(series)) {
    sortForDelivery(events_);
    computeLatestEnds();
}

CalendarContents CalendarContents::withReplaced(const std::vector<const IcsFile*>& oldFiles,
                                                const std::vector<const IcsFile*>& newFiles) const {
    std::unordered_set<const void*> gone;
    for (const IcsFile* file : oldFiles) {
        for (const Event& event : file->events) {
            gone.insert(event.details.get());
        }
        for (const auto& series : file->series) {
            gone.insert(series.get());
        }
    }
    CalendarContents changed;
    changed.events_.reserve(events_.size());
    std::ranges::copy_if(events_, std::back_inserter(changed.events_), [&](const Event& event) {
        return gone.empty() || !gone.contains(event.details.get());
    });
    std::ranges::copy_if(series_, std::back_inserter(changed.series_),
                         [&](const auto& series) { return !gone.contains(series.get()); });
    EventList more;
    for (const IcsFile* file : newFiles) {
        std::ranges::copy(file->events, std::back_inserter(more));
        std::ranges::copy(file->series, std::back_inserter(changed.series_));
    }
    sortForDelivery(more);
    mergeDelivered(changed.events_, std::move(more));
    changed.computeLatestEnds();
    return changed;
}

EventList CalendarContents::events(Instant from, Instant to, WorkBudget& budget) const {
    // Everything before `first` has ended by then; only what ends at `from` without length matters.
    const auto firstEnd = std::ranges::lower_bound(latestEnds_, from);
    const auto first = events_.begin() + (firstEnd - latestEnds_.begin());
    const auto last = std::ranges::lower_bound(first, events_.end(), to, {}, &Event::startDate);
    EventList found;
    found.reserve(static_cast<std::size_t>(last - first));
    std::copy_if(first, last, std::back_inserter(found),
                 [&](const Event& event) { return isWithin(event, from, to); });
    EventList recurring;
    for (const auto& series : series_) {
        appendOccurrences(*series, from, to, budget, recurring);
    }
    sortForDelivery(recurring);
    mergeDelivered(found, std::move(recurring));
    return found;
}

void CalendarContents::computeLatestEnds() {
    latestEnds_.clear();
    latestEnds_.reserve(events_.size());
    Instant latest = Instant::min();
    for (const Event& event : events_) {
        latest = std::max(latest, event.endDate);
        latestEnds_.push_back(latest);
    }
}

CalendarsAnswer eventsOf(const std::vector<std::shared_ptr<const CalendarContents>>& calendars,
                         Instant from, Instant to) {
    // Recurrences need dates that the calendar has.
    const Instant earliest = std::chrono::sys_days(std::chrono::year(1) / 1 / 10);
    const Instant latest = std::chrono::sys_days(std::chrono::year(9990) / 1 / 1);
    from = std::clamp(from, earliest, latest);
    to = std::clamp(to, earliest, latest);
    CalendarsAnswer answer;
    WorkBudget budget(queryBudget);
    for (const auto& calendar : calendars) {
        mergeDelivered(answer.events, calendar->events(from, to, budget));
    }
    answer.isComplete = !budget.isExhausted();
    return answer;
}

} // namespace quillet
