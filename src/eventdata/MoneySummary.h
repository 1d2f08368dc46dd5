#pragma once

#include "eventdata/BillingSettings.h"
#include "platform/Event.h"

#include <QHash>

namespace quillet {

/// The sum of the costs of a set of events, added up one by one; exact, and quick for many events.
class MoneySummary {
public:
    explicit MoneySummary(const BillingSettings& settings)
        : settings_(settings) {}

    void add(const Event& event);
    /// 0 for the empty set or with money off; not a number when an event has no usable rate.
    [[nodiscard]] Decimal total() const;

private:
    /// Events of one calendar have one rate, so that only the time needs adding.
    struct CalendarTime {
        Event sample;
        std::int64_t minutes = 0;
        /// In hundredths, each event's rounded as its cost has it.
        std::int64_t roundedHours = 0;
    };

    const BillingSettings& settings_;
    QHash<const StoreCalendar*, CalendarTime> times_;
};

} // namespace quillet
