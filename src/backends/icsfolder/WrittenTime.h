#pragma once

#include "platform/ZoneRules.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// A DATE or DATE-TIME as a file writes it, without its zone.
struct WrittenTime {
    LocalSeconds local;
    bool isDate = false;
    bool isUtc = false;
};

/// Reads "20240301", "20240301T090000" and "20240301T090000Z", and what can mean nothing else:
/// small letters, no seconds, fractions of them, dashes and colons, "ZZ", an offset from UTC.
/// Nothing for anything else, a day that the calendar does not have included.
[[nodiscard]] std::optional<WrittenTime> writtenTimeFrom(std::string_view text);
/// The same in the form that the standard prescribes.
[[nodiscard]] std::string standardForm(const WrittenTime& time);

} // namespace quillet
