#pragma once

#include "insight/Amounts.h"

#include <QString>

#include <array>
#include <vector>

namespace quillet {

/// The steps to which time can be rounded, in minutes.
constexpr std::array<int, 6> roundingStepsMinutes{5, 6, 10, 15, 30, 60};

enum class RoundingDirection { Up, Down, Nearest };

/// What is rounded as one.
enum class RoundingScope {
    Event,
    /// What the events of one calendar and one title have of a local day.
    DayAndTitle,
};

/// How time is rounded for a bill that stands beside the exact figures.
struct BillingRounding {
    int stepMinutes = 15;
    RoundingDirection direction = RoundingDirection::Up;
    RoundingScope scope = RoundingScope::Event;
    /// At least this for each event; 0 for no minimum. May be no multiple of the step.
    std::int64_t minimumMinutes = 0;
};

/// The minutes as a multiple of the step; halfway counts as up. What is not above 0 stays as it is,
/// and a step below 1 changes nothing.
[[nodiscard]] std::int64_t roundedMinutes(std::int64_t minutes, int stepMinutes,
                                          RoundingDirection direction);

/// What is rounded as one: an event, or what a day has of a title.
struct BilledEntry {
    /// The start of the local day on which it begins inside the period.
    Instant day;
    /// Ascending; the first names calendar and title.
    std::vector<EventIndex> events;
    Amounts exact;
    Amounts billed;
};

struct BilledTotals {
    /// In order of their first events in the list, those of one event in order of time.
    std::vector<BilledEntry> entries;
    /// What the results panel shows.
    Amounts exact;
    Amounts billed;
};

/// Rounds, and computes the money for the rounded minutes as it is for exact ones. A day of a title
/// is raised to the minimum of all events that begin on it.
[[nodiscard]] BilledTotals billedTotalsOf(const InsightInput& input,
                                          const BillingRounding& rounding);

/// What rounding adds to the exact figures of an event on a day, or takes from them: what an entry
/// is billed beyond its exact figures stands with its first event.
struct BilledSurplus {
    EventIndex event = 0;
    /// The start of the local day.
    Instant day;
    Amounts amounts;
};

/// For the views that show what is billed beside what is exact; entries without any are left out.
[[nodiscard]] std::vector<BilledSurplus> surplusesOf(const BilledTotals& totals);

/// "exact 82 h, billed 84.5 h", with money where it is on.
[[nodiscard]] QString billedText(const Amounts& exact, const Amounts& billed, TimeUnit unit,
                                 const LocaleFormats& formats);

} // namespace quillet
