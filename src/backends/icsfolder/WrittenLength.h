#pragma once

#include "backends/icsfolder/Series.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillet {

/// Nothing lasts longer than this: a typing error must not fill every period for ever.
constexpr std::chrono::days longestEvent{36525};

/// A DURATION as a file writes it.
struct WrittenLength {
    EventLength length;
    bool isNegative = false;
    /// Whether it was longer than `longestEvent` and was cut.
    bool isCut = false;
};

/// Reads "P1DT2H", and what can mean nothing else: "P1H", "1H30M", "PT1H30", "PT1W", "PT1.5H",
/// "1:30:00", small letters. Nothing for anything else.
[[nodiscard]] std::optional<WrittenLength> writtenLengthFrom(std::string_view text);
/// The same in the form that the standard prescribes, without its sign.
[[nodiscard]] std::string standardForm(const EventLength& length);

} // namespace quillet
