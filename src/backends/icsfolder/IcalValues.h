#pragma once

#include "backends/icsfolder/RecurrenceRule.h"
#include "platform/ZoneRules.h"

#include <QString>

#include <libical/ical.h>

#include <memory>
#include <optional>

namespace quillet {

struct ComponentDeleter {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using ComponentPointer = std::unique_ptr<icalcomponent, ComponentDeleter>;

/// The wall-clock reading of a libical time; nothing when it is no date of the calendar.
[[nodiscard]] std::optional<LocalSeconds> localSecondsFrom(const icaltimetype& time);

/// A text, unescaped; a null QString when the property holds none. Bytes that are no UTF-8 are
/// read as Latin-1.
[[nodiscard]] QString textFrom(const icalproperty* property);

/// A rule in the wall-clock time of the zone. Nothing when it cannot be followed: one that is
/// malformed, never advances, or repeats by the minute or second.
[[nodiscard]] std::optional<RecurrenceRule> ruleFrom(const icalrecurrencetype& recurrence,
                                                     const ZoneRules& zone, bool isAllDay);

} // namespace quillet
