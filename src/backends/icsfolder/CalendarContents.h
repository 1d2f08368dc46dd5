#pragma once

#include "backends/icsfolder/IcsFile.h"

#include <memory>
#include <vector>

namespace quillet {

/// All events of one calendar, laid out for range queries. Immutable, so that threads can share it.
class CalendarContents {
public:
    CalendarContents() = default;
    /// The events in any order.
    CalendarContents(EventList events, std::vector<std::shared_ptr<const Series>> series);
    /// This calendar after some of its files changed: without what the old ones held, with what the
    /// new ones hold. Costs far less than building it anew.
    [[nodiscard]] CalendarContents withReplaced(const std::vector<const IcsFile*>& oldFiles,
                                                const std::vector<const IcsFile*>& newFiles) const;

    /// The events that overlap [from, to), in the order of delivery. Fewer when the budget runs
    /// out.
    [[nodiscard]] EventList events(Instant from, Instant to, WorkBudget& budget) const;

private:
    void computeLatestEnds();

    EventList events_;
    /// For each event the latest end among it and those before it.
    std::vector<Instant> latestEnds_;
    std::vector<std::shared_ptr<const Series>> series_;
};

struct CalendarsAnswer {
    EventList events;
    /// False when there are so many repetitions that some were left out.
    bool isComplete = true;
};

/// The events of several calendars that overlap [from, to), in the order of delivery. Takes half a
/// second at the most for repetitions.
[[nodiscard]] CalendarsAnswer
eventsOf(const std::vector<std::shared_ptr<const CalendarContents>>& calendars, Instant from,
         Instant to);

} // namespace quillet
