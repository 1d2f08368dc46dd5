#pragma once

#include "insight/Amounts.h"

#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// Some days: [start, end), both starts of local days.
struct Stretch {
    Instant start;
    Instant end;
};

/// A stretch of the period, and the one like it of the period before.
struct ComparedStretches {
    Stretch current;
    Stretch before;
    /// The period runs still: both end with today, counted from their starts.
    bool isPartial = false;
};

/// The period before is as many whole months as the period is (a month, a year, the 15th to the
/// 14th), else as many days; it ends where the period begins. With `now` inside the period only the
/// days up to today are compared.
[[nodiscard]] ComparedStretches comparedStretches(const BillingSettings& billing,
                                                  std::optional<Instant> now,
                                                  const CalendarArithmetic& calendar);

/// What the settings are with that stretch for a period.
[[nodiscard]] BillingSettings billingWithin(const BillingSettings& billing, const Stretch& stretch);

/// What the events count; money 0, not absent, where it is on and there are none.
[[nodiscard]] Amounts amountsOf(std::span<const Event> events, const BillingSettings& billing);

struct Comparison {
    ComparedStretches stretches;
    Amounts current;
    Amounts before;
    /// What the current stretch has more; negative for less.
    std::int64_t minutesMore = 0;
    /// Absent while money is off or not a number.
    std::optional<Decimal> moneyMore;
};

/// `eventsBefore` are the events of the stretch before, of the same calendars.
[[nodiscard]] Comparison comparisonOf(std::span<const Event> events,
                                      std::span<const Event> eventsBefore,
                                      const BillingSettings& billing,
                                      const ComparedStretches& stretches);

/// "+6.5 h, +$650.00 on October 2026"; for part of a period its days instead of its name.
[[nodiscard]] QString comparisonText(const Comparison& comparison, TimeUnit unit,
                                     const LocaleFormats& formats,
                                     const CalendarArithmetic& calendar);

enum class GoalMeasure { Hours, Money };
enum class GoalSpan { Week, Month };

/// What the user wants to reach in a calendar.
struct Goal {
    QString calendarIdentifier;
    GoalMeasure measure = GoalMeasure::Hours;
    GoalSpan span = GoalSpan::Month;
    /// Hours or money.
    Decimal amount;
};

struct GoalProgress {
    /// The goal for the days of the period: of a week's by sevenths, of a month's by the days of
    /// each month.
    Decimal target;
    Decimal reached;
    /// 0 where the goal is reached.
    Decimal left;
    /// reached / target, not above 1; nothing without a target above 0.
    std::optional<Decimal> fraction;
};

/// Nothing for money while it is off or not a number, and for a goal that is not a number.
[[nodiscard]] std::optional<GoalProgress> progressOf(const Goal& goal, const InsightInput& input);

} // namespace quillet
