#include "eventdata/MoneySummary.h"

#include "eventdata/EventFigures.h"

#include <cstdlib>

namespace quillet {

void MoneySummary::add(const Event& event) {
    CalendarTime& time = times_[event.details->calendar.get()];
    const std::int64_t minutes = billableMinutes(event, settings_);
    if (!time.sample.details) {
        time.sample = event;
    }
    time.minutes += minutes;
    // minutes / 60 rounded to hundredths: thirds never lie halfway between two of them.
    time.roundedHours += (std::abs(minutes) * 10 + 3) / 6;
}

Decimal MoneySummary::total() const {
    Decimal sum;
    for (const CalendarTime& time : times_) {
        const Decimal rate = billableRate(time.sample, settings_);
        if (!settings_.isMoneyOn) {
            continue;
        }
        if (settings_.isMoneyFromHours) {
            sum += rate * Decimal::fromInteger(time.roundedHours) / Decimal::fromInteger(100);
        } else {
            sum += billableCost(time.minutes, rate, settings_).value_or(Decimal());
        }
    }
    return sum;
}

} // namespace quillet
