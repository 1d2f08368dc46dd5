#pragma once

#include "backends/icsfolder/RecurrenceRule.h"
#include "platform/Event.h"

#include <memory>
#include <vector>

namespace quillet {

/// How long an event lasts: days by the calendar, then seconds by the clock.
struct EventLength {
    std::chrono::days days{0};
    std::chrono::seconds seconds{0};
};

/// Occurrences that do not take place, or that stand elsewhere as events of their own. Sorted.
struct Exclusions {
    std::vector<std::chrono::sys_seconds> instants;
    std::vector<std::chrono::local_days> days;

    void sort();
    /// Whether the occurrence is among them that starts then.
    [[nodiscard]] bool contain(LocalSeconds local, std::chrono::sys_seconds instant) const;
};

/// An event that recurs. Immutable once built; its occurrences are worked out for each query.
struct Series {
    /// A date that a list adds, with a length of its own where the list gives one.
    struct ExtraOccurrence {
        LocalSeconds start;
        std::optional<EventLength> length;
    };
    /// What holds from one occurrence on, until the next variation.
    struct Variation {
        /// The original start of the first occurrence that it changes.
        std::chrono::sys_seconds from;
        /// By how much wall-clock time the occurrences move.
        std::chrono::seconds shift;
        EventLength length;
        std::shared_ptr<const ZoneRules> zone;
        /// Null when the occurrences are cancelled.
        std::shared_ptr<const EventDetails> details;
    };

    std::shared_ptr<const EventDetails> details;
    std::shared_ptr<const ZoneRules> zone;
    LocalSeconds start;
    EventLength length;
    /// Without counts.
    std::vector<RecurrenceRule> rules;
    std::vector<RecurrenceRule> exceptionRules;
    std::vector<ExtraOccurrence> extras;
    /// What the series itself leaves out.
    Exclusions excluded;
    /// What its exceptions replace; null where it has none. Several series may share it.
    std::shared_ptr<const Exclusions> replaced;
    /// By `from`.
    std::vector<Variation> variations;
};

/// When an event of that length ends which starts then.
[[nodiscard]] Instant endOf(LocalSeconds start, const EventLength& length, const ZoneRules& zone);

/// Appends the occurrences that overlap [from, to), not in order. Fewer when the budget runs out.
void appendOccurrences(const Series& series, Instant from, Instant to, WorkBudget& budget,
                       EventList& events);

/// Whether an event belongs to the answer for [from, to).
[[nodiscard]] inline bool isWithin(const Event& event, Instant from, Instant to) {
    return event.startDate < to &&
           (event.endDate > from || (event.endDate == event.startDate && event.startDate >= from));
}

} // namespace quillet
