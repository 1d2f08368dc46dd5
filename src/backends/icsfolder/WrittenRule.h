#pragma once

#include "backends/icsfolder/RecurrenceRule.h"

#include <optional>
#include <string_view>

namespace quillet {

/// Reads an RRULE in the wall-clock time of the zone, or in whole days. Details that programs write
/// and that mean nothing are passed over: an interval of 0, a count below 1 beside an end, parts
/// of a program's own, the scale that everybody counts by. Nothing when the rule cannot be
/// followed.
[[nodiscard]] std::optional<RecurrenceRule> writtenRuleFrom(std::string_view text,
                                                            const ZoneRules& zone, bool isAllDay);

} // namespace quillet
