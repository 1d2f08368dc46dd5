#include "eventdata/EventTotals.h"

#include "eventdata/EventFigures.h"

namespace quillet {

namespace {

constexpr std::int64_t minutesOfAnHour = 60;

Decimal quotient(std::int64_t dividend, std::int64_t divisor) {
    return Decimal::fromInteger(dividend) / Decimal::fromInteger(divisor);
}

} // namespace

void EventTotals::add(const Event& event) {
    const std::int64_t minutes = billableMinutes(event, settings_);
    ++count_;
    minutes_.add(minutes);
    if (!settings_.isMoneyOn) {
        return;
    }
    const auto [entry, isNew] = calendars_.try_emplace(event.details->calendar.get());
    if (isNew) {
        entry->second.calendar = event.details->calendar;
        entry->second.rate = billableRate(event, settings_);
    }
    ++entry->second.countsByMinutes[minutes];
}

Decimal EventTotals::sumMinutes() const {
    return Decimal::fromInteger(minutes_.sum());
}

Decimal EventTotals::sumHours() const {
    return quotient(minutes_.sum(), minutesOfAnHour);
}

Decimal EventTotals::avgMinutes() const {
    return count_ == 0 ? Decimal() : quotient(minutes_.sum(), count_);
}

Decimal EventTotals::avgHours() const {
    return count_ == 0 ? Decimal() : quotient(minutes_.sum(), count_ * minutesOfAnHour);
}

std::optional<Decimal> EventTotals::minMinutes() const {
    return count_ == 0 ? std::nullopt : std::optional(Decimal::fromInteger(minutes_.smallest()));
}

std::optional<Decimal> EventTotals::maxMinutes() const {
    return count_ == 0 ? std::nullopt : std::optional(Decimal::fromInteger(minutes_.largest()));
}

std::optional<Decimal> EventTotals::minHours() const {
    return count_ == 0 ? std::nullopt
                       : std::optional(quotient(minutes_.smallest(), minutesOfAnHour));
}

std::optional<Decimal> EventTotals::maxHours() const {
    return count_ == 0 ? std::nullopt
                       : std::optional(quotient(minutes_.largest(), minutesOfAnHour));
}

std::optional<Decimal> EventTotals::sumCost() const {
    if (!settings_.isMoneyOn) {
        return std::nullopt;
    }
    Decimal sum;
    for (const auto& [calendar, entry] : calendars_) {
        for (const auto& [minutes, count] : entry.countsByMinutes) {
            const auto cost = billableCost(minutes, entry.rate, settings_);
            sum += cost.value_or(Decimal()) * Decimal::fromInteger(count);
        }
    }
    return sum;
}

} // namespace quillet
