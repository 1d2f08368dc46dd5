#pragma once

#include "backends/icsfolder/RecurrenceRule.h"
#include "backends/icsfolder/Series.h"
#include "platform/ZoneRules.h"

#include <QString>

#include <libical/ical.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

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

/// Nothing where it is below zero.
[[nodiscard]] EventLength lengthFrom(const icaldurationtype& duration);

/// A value as a file would write it.
[[nodiscard]] std::string writtenForm(const icalproperty* property);

/// A property that the parser could not read: its name, empty when it is not known, and its value.
struct UnreadProperty {
    std::string_view name;
    std::string value;
};
/// What the parser says of an error. Refers to the text of the error.
[[nodiscard]] UnreadProperty unreadFrom(std::string_view error);

/// A rule as a file would write it.
[[nodiscard]] std::string ruleTextFrom(const icalrecurrencetype& recurrence);

/// A rule in the wall-clock time of the zone. Nothing when it cannot be followed.
[[nodiscard]] std::optional<RecurrenceRule> ruleFrom(const icalrecurrencetype& recurrence,
                                                     const ZoneRules& zone, bool isAllDay);

} // namespace quillet
