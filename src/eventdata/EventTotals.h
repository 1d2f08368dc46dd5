#pragma once

#include "eventdata/BillingSettings.h"
#include "eventdata/EventAggregates.h"
#include "platform/Decimal.h"
#include "platform/Event.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>

namespace quillet {

/// The figures of a set of events, added up one by one.
class EventTotals {
public:
    explicit EventTotals(BillingSettings settings)
        : settings_(std::move(settings)) {}

    void add(const Event& event);

    [[nodiscard]] std::int64_t count() const { return count_; }
    [[nodiscard]] Decimal sumMinutes() const;
    [[nodiscard]] Decimal sumHours() const;
    /// Means are 0 where there is no event, as sums are.
    [[nodiscard]] Decimal avgMinutes() const;
    [[nodiscard]] Decimal avgHours() const;
    /// Nothing where there is no event, as in the three that follow.
    [[nodiscard]] std::optional<Decimal> minMinutes() const;
    [[nodiscard]] std::optional<Decimal> maxMinutes() const;
    [[nodiscard]] std::optional<Decimal> minHours() const;
    [[nodiscard]] std::optional<Decimal> maxHours() const;
    /// Nothing while money is off; not a number when one event's cost is none.
    [[nodiscard]] std::optional<Decimal> sumCost() const;

private:
    /// How many events of one calendar have how many minutes: few numbers, even for many events.
    struct CalendarMinutes {
        /// Keeps the address, which is the key, from being given to another calendar.
        std::shared_ptr<const StoreCalendar> calendar;
        Decimal rate;
        std::unordered_map<std::int64_t, std::int64_t> countsByMinutes;
    };

    BillingSettings settings_;
    std::int64_t count_ = 0;
    MinutesSummary minutes_;
    std::unordered_map<const StoreCalendar*, CalendarMinutes> calendars_;
};

} // namespace quillet
