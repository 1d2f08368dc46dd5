#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Decimal.h"
#include "platform/Event.h"
#include "platform/LocaleFormats.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <span>

namespace quillet {

/// What every view of the events is computed from, and for as long as it is computed. Holds
/// references: whoever computes on another thread keeps copies of his own.
struct InsightInput {
    /// All listed events, or the selected ones, in the order of the list. Results name an event by
    /// its index herein.
    std::span<const Event> events;
    const BillingSettings& billing;
    /// The Gregorian calendar in the system time zone.
    const CalendarArithmetic& calendar;
};

/// Names an event: its index in InsightInput::events.
using EventIndex = std::uint32_t;

/// Time and money of some events, or of parts of them.
struct Amounts {
    /// Whole billable minutes, negative for events outside the period.
    std::int64_t minutes = 0;
    /// Absent while money is off; not a number where a calendar has no rate.
    std::optional<Decimal> cost;

    void add(std::int64_t moreMinutes, const std::optional<Decimal>& moreCost);
};

/// In which of its three forms time is shown.
enum class TimeUnit { Hours = 1, Minutes = 2, Duration = 3 };

/// The time as the results panel writes it: a number with at most two decimals, or a duration.
[[nodiscard]] QString timeText(std::int64_t minutes, TimeUnit unit, const LocaleFormats& formats);
/// A time with its unit: "8.25 h", "495 min", "8h 15m".
[[nodiscard]] QString timeWithUnit(std::int64_t minutes, TimeUnit unit,
                                   const LocaleFormats& formats);
/// The amount in the currency style; empty while money is off.
[[nodiscard]] QString moneyText(const std::optional<Decimal>& cost, const LocaleFormats& formats);

/// What timeText() shows as a number: hours rounded half-even to two decimals; minutes for the two
/// others, which lose nothing.
[[nodiscard]] Decimal shownTime(std::int64_t minutes, TimeUnit unit);
/// What moneyText() shows as a number, rounded half-even.
[[nodiscard]] Decimal shownMoney(const Decimal& cost, int currencyDecimals);
/// The decimals of the currency style, read off its zero.
[[nodiscard]] int currencyDecimals(const LocaleFormats& formats);

/// The part of the whole, 1 being all of it; nothing where the whole is 0.
[[nodiscard]] std::optional<Decimal> shareOfTime(const Amounts& part, const Amounts& whole);
/// The same for money; nothing, too, where money is off or not a number.
[[nodiscard]] std::optional<Decimal> shareOfMoney(const Amounts& part, const Amounts& whole);
/// A share in percent with at most one decimal; empty for none.
[[nodiscard]] QString shareText(const std::optional<Decimal>& share, const LocaleFormats& formats);

/// A text of the calendars without the characters that part the cells and rows of copied texts.
[[nodiscard]] QString inOneCell(QString text);

} // namespace quillet
