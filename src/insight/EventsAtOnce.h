#pragma once

#include "insight/Amounts.h"
#include "insight/Findings.h"

#include <vector>

namespace quillet {

/// Two events that are there at the same time.
struct EventPair {
    FindingKind kind = FindingKind::Overlap;
    EventIndex earlier = 0;
    EventIndex later = 0;
    /// How long both last together; 0 for two of no length.
    std::chrono::milliseconds together{0};
};

/// Pairs each event with the one that, of those which began before or with it, lasts longest: with
/// the one of the same entry or title first, else with any in a calendar that is billed. So an
/// event is the later one of one pair at the most, however many there are at once. In order of
/// time.
[[nodiscard]] std::vector<EventPair> eventsAtOnce(const InsightInput& input);

} // namespace quillet
