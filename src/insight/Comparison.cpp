#include "insight/Comparison.h"

#include "eventdata/EventFigures.h"
#include "insight/EventShares.h"
#include "insight/Slices.h"
#include "texts/Localized.h"

#include <QStringList>

#include <algorithm>
#include <chrono>

namespace quillet {

using namespace std::chrono_literals;

namespace {

constexpr int monthsOfAYear = 12;

Instant plusDays(Instant dayStart, int days, const CalendarArithmetic& calendar) {
    return calendar.startOfDay(calendar.add(dayStart, {.days = days}));
}

/// The days of the period. Its end lies an hour off the end of its last day where that has 23 or
/// 25 hours.
Stretch daysOf(const BillingSettings& billing, const CalendarArithmetic& calendar) {
    const Instant lastDay = calendar.startOfDay(billing.periodEnd - 2h);
    return {.start = billing.periodStart, .end = plusDays(lastDay, 1, calendar)};
}

/// How many months a stretch is, 0 where it is no whole number of them.
int wholeMonths(const Stretch& stretch, const CalendarArithmetic& calendar) {
    const DateComponents start = calendar.components(stretch.start);
    const DateComponents end = calendar.components(stretch.end);
    return start.day == end.day ? (end.year - start.year) * monthsOfAYear + end.month - start.month
                                : 0;
}

QString stretchName(const ComparedStretches& stretches, const LocaleFormats& formats,
                    const CalendarArithmetic& calendar) {
    const Stretch& before = stretches.before;
    const bool isMonth = !stretches.isPartial && wholeMonths(before, calendar) == 1 &&
                         calendar.components(before.start).day == 1;
    if (isMonth) {
        return formats.monthAndYear(before.start);
    }
    const QString first = formats.shortDate(before.start);
    const QString last = formats.shortDate(before.end - 2h);
    return first == last ? first : QStringLiteral("%1 – %2").arg(first, last);
}

QString withSign(bool isNegative, const QString& text) {
    return (isNegative ? QStringLiteral("−") : QStringLiteral("+")) + text;
}

/// The goal of a month for the days of the period: each month's by how many of its days lie there.
Decimal monthlyTarget(const Decimal& amount, const InsightInput& input, const Stretch& days) {
    BillingSettings billing = input.billing;
    billing.periodStart = days.start;
    billing.periodEnd = days.end;
    const Slices months(SliceUnit::Month, billing, {}, input.calendar);
    Decimal target;
    for (std::size_t month = 0; month < months.count(); ++month) {
        const Instant start = months.start(month);
        const DateComponents fields = input.calendar.components(start);
        const Instant first = input.calendar.instant({.year = fields.year, .month = fields.month});
        const Instant next =
            input.calendar.instant({.year = fields.year, .month = fields.month + 1});
        const auto inPeriod = static_cast<std::int64_t>(daysBetween(start, months.end(month)));
        const auto ofMonth = static_cast<std::int64_t>(daysBetween(first, next));
        target += inPeriod == ofMonth
                      ? amount
                      : amount * Decimal::fromInteger(inPeriod) / Decimal::fromInteger(ofMonth);
    }
    return target;
}

Decimal targetOf(const Goal& goal, const InsightInput& input) {
    const Stretch days = daysOf(input.billing, input.calendar);
    if (goal.span == GoalSpan::Month) {
        return monthlyTarget(goal.amount, input, days);
    }
    constexpr std::int64_t daysOfAWeek = 7;
    const auto count = static_cast<std::int64_t>(daysBetween(days.start, days.end));
    return goal.amount * Decimal::fromInteger(count) / Decimal::fromInteger(daysOfAWeek);
}

} // namespace

ComparedStretches comparedStretches(const BillingSettings& billing, std::optional<Instant> now,
                                    const CalendarArithmetic& calendar) {
    ComparedStretches result;
    result.current = daysOf(billing, calendar);
    const Instant start = result.current.start;
    const int months = wholeMonths(result.current, calendar);
    const int days = static_cast<int>(daysBetween(start, result.current.end));
    result.before = {.start = months > 0
                                  ? calendar.startOfDay(calendar.add(start, {.months = -months}))
                                  : plusDays(start, -days, calendar),
                     .end = start};
    if (now && *now >= start && *now < result.current.end) {
        const Instant today = calendar.startOfDay(*now);
        const int passed = static_cast<int>(daysBetween(start, today + 24h));
        if (passed < days) {
            result.isPartial = true;
            result.current.end = plusDays(start, passed, calendar);
            result.before.end = std::min(start, plusDays(result.before.start, passed, calendar));
        }
    }
    return result;
}

BillingSettings billingWithin(const BillingSettings& billing, const Stretch& stretch) {
    BillingSettings result = billing;
    result.periodStart = stretch.start;
    result.periodEnd = stretch.end;
    return result;
}

Amounts amountsOf(std::span<const Event> events, const BillingSettings& billing) {
    Amounts amounts;
    if (billing.isMoneyOn) {
        amounts.cost = Decimal();
    }
    EventCosts costs(billing);
    for (const Event& event : events) {
        const std::int64_t minutes = billableMinutes(event, billing);
        amounts.add(minutes, costs.of(event, minutes));
    }
    return amounts;
}

Comparison comparisonOf(std::span<const Event> events, std::span<const Event> eventsBefore,
                        const BillingSettings& billing, const ComparedStretches& stretches) {
    // What lies outside its stretch would count less than nothing.
    const auto within = [&](std::span<const Event> all, const Stretch& stretch) {
        EventList inside;
        std::ranges::copy_if(all, std::back_inserter(inside), [&](const Event& event) {
            return event.startDate < stretch.end && event.endDate > stretch.start;
        });
        return amountsOf(inside, billingWithin(billing, stretch));
    };
    Comparison result;
    result.stretches = stretches;
    result.current =
        stretches.isPartial ? within(events, stretches.current) : amountsOf(events, billing);
    result.before = within(eventsBefore, stretches.before);
    result.minutesMore = result.current.minutes - result.before.minutes;
    if (result.current.cost && result.before.cost) {
        const Decimal more = *result.current.cost - *result.before.cost;
        if (!more.isNaN()) {
            result.moneyMore = more;
        }
    }
    return result;
}

QString comparisonText(const Comparison& comparison, TimeUnit unit, const LocaleFormats& formats,
                       const CalendarArithmetic& calendar) {
    const std::int64_t minutes = comparison.minutesMore;
    QStringList more{withSign(minutes < 0, timeWithUnit(std::abs(minutes), unit, formats))};
    if (comparison.moneyMore) {
        more.append(withSign(comparison.moneyMore->isNegative(),
                             formats.currency(comparison.moneyMore->absolute())));
    }
    return localized("%1 on %2")
        .arg(more.join(QStringLiteral(", ")), stretchName(comparison.stretches, formats, calendar));
}

std::optional<GoalProgress> progressOf(const Goal& goal, const InsightInput& input) {
    EventList ofCalendar;
    std::ranges::copy_if(input.events, std::back_inserter(ofCalendar), [&](const Event& event) {
        return event.details->calendar->calendarIdentifier == goal.calendarIdentifier;
    });
    const Amounts amounts = amountsOf(ofCalendar, input.billing);
    const bool isMoney = goal.measure == GoalMeasure::Money;
    if (goal.amount.isNaN() || (isMoney && (!amounts.cost || amounts.cost->isNaN()))) {
        return std::nullopt;
    }
    GoalProgress progress;
    progress.target = targetOf(goal, input);
    progress.reached =
        isMoney ? *amounts.cost : Decimal::fromInteger(amounts.minutes) / Decimal::fromInteger(60);
    const Decimal left = progress.target - progress.reached;
    progress.left = left.isNegative() ? Decimal() : left;
    if (!progress.target.isNegative() && !progress.target.isZero()) {
        progress.fraction =
            left.isNegative() ? Decimal::fromInteger(1) : progress.reached / progress.target;
    }
    return progress;
}

} // namespace quillet
