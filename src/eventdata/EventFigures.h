#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/Decimal.h"
#include "platform/Event.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace quillet {

/// The billable time and money of one event.
struct EventFigures {
    /// Of the event inside the period; negative when it lies wholly outside.
    std::int64_t minutes = 0;
    /// minutes / 60, to 38 digits.
    Decimal hours;
    /// The duration text of the minutes.
    QString duration;
    /// Money per hour; not a number when per-calendar rates are on and none is stored for the
    /// event's calendar.
    Decimal rate;
    /// Absent when money is off.
    std::optional<Decimal> cost;
};

/// The part of an event that the period leaves of it: [start, end). Not corrected where the event
/// lies outside: the end is before the start then.
struct BilledSpan {
    Instant start;
    Instant end;
};

[[nodiscard]] BilledSpan billedSpan(const Event& event, const BillingSettings& settings);

/// The minutes alone, for totals over many events.
///
/// A timed event: its span inside the period / 60, rounded half away from zero. An all-day event:
/// allDayHours × its days of 86,400 seconds inside the period × 60, rounded likewise.
[[nodiscard]] std::int64_t billableMinutes(const Event& event, const BillingSettings& settings);

/// The rate alone.
[[nodiscard]] Decimal billableRate(const Event& event, const BillingSettings& settings);

/// The factors of a cost: hours, rounded half-even to two decimals, as a magnitude,
[[nodiscard]] Decimal hoursForMoney(std::int64_t minutes);
/// or the money for a minute, rounded half-even to fifteen.
[[nodiscard]] Decimal rateOfAMinute(const Decimal& rate);

/// minutes × (rate / 60, rounded half-even to fifteen decimals), or, from hours,
/// (minutes / 60, rounded half-even to two decimals, as a magnitude) × rate. The first rounding
/// shows, and is meant to: 100 an hour for 90 minutes costs 150.00000000000003.
[[nodiscard]] std::optional<Decimal> billableCost(std::int64_t minutes, const Decimal& rate,
                                                  const BillingSettings& settings);

[[nodiscard]] EventFigures figures(const Event& event, const BillingSettings& settings);

} // namespace quillet
