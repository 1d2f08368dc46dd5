#include "insight/EventsAtOnce.h"

#include "eventdata/EventFigures.h"
#include "insight/EventGroups.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace quillet {

namespace {

bool isBefore(const Event& left, const Event& right) {
    return std::pair(left.startDate, left.endDate) < std::pair(right.startDate, right.endDate);
}

std::vector<EventIndex> inOrderOfTime(std::span<const Event> events) {
    std::vector<EventIndex> order(events.size());
    std::iota(order.begin(), order.end(), EventIndex{0});
    const auto isEarlier = [&](EventIndex left, EventIndex right) {
        return isBefore(events[left], events[right]);
    };
    if (!std::ranges::is_sorted(order, isEarlier)) {
        std::ranges::stable_sort(order, isEarlier);
    }
    return order;
}

bool isSameEntry(const Event& left, const Event& right) {
    return !left.details->eventIdentifier.isEmpty() && left.startDate == right.startDate &&
           left.endDate == right.endDate && left.occurrenceDate == right.occurrenceDate &&
           left.details->eventIdentifier == right.details->eventIdentifier &&
           left.details->calendar->calendarIdentifier !=
               right.details->calendar->calendarIdentifier;
}

/// Goes through the events in order of time and remembers which of those that began lasts longest.
class Sweep {
public:
    explicit Sweep(const InsightInput& input)
        : input_(input)
        , isTimeBilled_(!input.billing.isMoneyOn) {}

    [[nodiscard]] std::vector<EventPair> pairs() {
        for (const EventIndex index : inOrderOfTime(input_.events)) {
            const Event& event = input_.events[index];
            if (!addSameTitle(index, event) && isBilled(event)) {
                addOverlap(index, event);
            }
            remember(longestOfTitle(event), index);
            if (isBilled(event)) {
                remember(longest(event), index);
            }
        }
        return std::move(pairs_);
    }

private:
    static constexpr EventIndex none = 0xffff'ffff;

    [[nodiscard]] bool addSameTitle(EventIndex index, const Event& event) {
        const EventIndex earlier = longestOfTitle(event);
        if (earlier == none) {
            return false;
        }
        const Event& other = input_.events[earlier];
        if (isSameEntry(other, event)) {
            add(FindingKind::SameEventInTwoCalendars, earlier, index);
            return true;
        }
        if (event.details->title.isEmpty() || !isAtOnce(other, event)) {
            return false;
        }
        add(FindingKind::SameTitleAtOnce, earlier, index);
        return true;
    }
    void addOverlap(EventIndex index, const Event& event) {
        const EventIndex earlier = longest(event);
        if (earlier != none && isAtOnce(input_.events[earlier], event) &&
            event.endDate > event.startDate) {
            add(FindingKind::Overlap, earlier, index);
        }
    }
    void add(FindingKind kind, EventIndex earlier, EventIndex later) {
        const Event& event = input_.events[later];
        const Instant end = std::min(input_.events[earlier].endDate, event.endDate);
        pairs_.push_back(
            {.kind = kind,
             .earlier = earlier,
             .later = later,
             .together = std::max(end - event.startDate, std::chrono::milliseconds(0))});
    }
    [[nodiscard]] static bool isAtOnce(const Event& earlier, const Event& later) {
        return earlier.endDate > later.startDate;
    }
    [[nodiscard]] bool isBilled(const Event& event) {
        if (isTimeBilled_) {
            return true;
        }
        const std::uint32_t number = calendars_.of(event);
        if (number == isBilled_.size()) {
            const Decimal rate = billableRate(event, input_.billing);
            isBilled_.push_back(!rate.isNaN() && !rate.isZero());
        }
        return isBilled_[number];
    }
    /// All-day events are compared with one another alone.
    [[nodiscard]] EventIndex& longest(const Event& event) {
        return event.details->isAllDay ? longestAllDay_ : longestTimed_;
    }
    [[nodiscard]] EventIndex& longestOfTitle(const Event& event) {
        const std::size_t number =
            2 * std::size_t(titles_.of(event.details->title)) + (event.details->isAllDay ? 1 : 0);
        if (number >= longestOfTitles_.size()) {
            longestOfTitles_.resize(2 * number + 2, none);
        }
        return longestOfTitles_[number];
    }
    void remember(EventIndex& longest, EventIndex index) const {
        if (longest == none || input_.events[index].endDate >= input_.events[longest].endDate) {
            longest = index;
        }
    }

    const InsightInput& input_;
    bool isTimeBilled_;
    CalendarNumbers calendars_;
    std::vector<bool> isBilled_;
    TextNumbers titles_;
    std::vector<EventIndex> longestOfTitles_;
    EventIndex longestTimed_ = none;
    EventIndex longestAllDay_ = none;
    std::vector<EventPair> pairs_;
};

} // namespace

std::vector<EventPair> eventsAtOnce(const InsightInput& input) {
    return Sweep(input).pairs();
}

} // namespace quillet
