#include "eventdata/EventFigures.h"

#include "eventdata/Duration.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr std::int64_t millisecondsOfAMinute = 60'000;
constexpr std::int64_t millisecondsOfADay = 86'400'000;
const Decimal sixty = Decimal::fromInteger(60);

std::int64_t dividedHalfAwayFromZero(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t half = dividend < 0 ? -divisor / 2 : divisor / 2;
    return (dividend + half) / divisor;
}

std::int64_t allDayMinutes(std::int64_t spanMilliseconds, std::int64_t allDayHours) {
    if (spanMilliseconds % millisecondsOfADay == 0) {
        return allDayHours * (spanMilliseconds / millisecondsOfADay) * 60;
    }
    // The days are a binary quotient, taken as the decimal that its shortest text spells.
    const double days = static_cast<double>(spanMilliseconds) / 1000.0 / 86'400.0;
    return (Decimal::fromInteger(allDayHours) * Decimal::fromDouble(days) * sixty)
        .rounded(0, Rounding::HalfAwayFromZero)
        .toInteger();
}

} // namespace

BilledSpan billedSpan(const Event& event, const BillingSettings& settings) {
    return {.start = std::max(event.startDate, settings.periodStart),
            .end = std::min(event.endDate, settings.periodEnd)};
}

std::int64_t billableMinutes(const Event& event, const BillingSettings& settings) {
    const auto [start, end] = billedSpan(event, settings);
    const std::int64_t span = (end - start).count();
    return event.details->isAllDay ? allDayMinutes(span, settings.allDayHours)
                                   : dividedHalfAwayFromZero(span, millisecondsOfAMinute);
}

Decimal billableRate(const Event& event, const BillingSettings& settings) {
    if (settings.isSingleRate) {
        return settings.singleRate;
    }
    const auto found =
        settings.calendarRates.constFind(event.details->calendar->calendarIdentifier);
    return found == settings.calendarRates.constEnd() ? Decimal::notANumber() : *found;
}

Decimal hoursForMoney(std::int64_t minutes) {
    return (Decimal::fromInteger(minutes) / sixty).rounded(2, Rounding::HalfEven).absolute();
}

Decimal rateOfAMinute(const Decimal& rate) {
    constexpr int perMinuteDecimals = 15;
    return (rate / sixty).rounded(perMinuteDecimals, Rounding::HalfEven);
}

std::optional<Decimal> billableCost(std::int64_t minutes, const Decimal& rate,
                                    const BillingSettings& settings) {
    if (!settings.isMoneyOn) {
        return std::nullopt;
    }
    return settings.isMoneyFromHours ? rate * hoursForMoney(minutes)
                                     : rateOfAMinute(rate) * Decimal::fromInteger(minutes);
}

EventFigures figures(const Event& event, const BillingSettings& settings) {
    EventFigures result;
    result.minutes = billableMinutes(event, settings);
    result.hours = Decimal::fromInteger(result.minutes) / sixty;
    result.duration = makeDurationFromMinutes(result.minutes);
    result.rate = billableRate(event, settings);
    result.cost = billableCost(result.minutes, result.rate, settings);
    return result;
}

} // namespace quillet
