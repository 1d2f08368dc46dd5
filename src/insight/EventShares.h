#pragma once

#include "eventdata/BillingSettings.h"
#include "insight/Slices.h"
#include "platform/Decimal.h"
#include "platform/Event.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace quillet {

/// The costs of events, each computed once for a calendar and a number of minutes. The events must
/// live as long as this.
class EventCosts {
public:
    /// The settings must outlive this.
    explicit EventCosts(const BillingSettings& billing)
        : billing_(billing) {}

    /// Nothing while money is off.
    [[nodiscard]] std::optional<Decimal> of(const Event& event, std::int64_t minutes);

private:
    struct CalendarCosts {
        Decimal rate;
        std::unordered_map<std::int64_t, Decimal> costsByMinutes;
    };

    const BillingSettings& billing_;
    std::unordered_map<const StoreCalendar*, CalendarCosts> calendars_;
    const StoreCalendar* lastCalendar_ = nullptr;
    CalendarCosts* lastCosts_ = nullptr;
};

/// The part of an event's figures that belongs to one slice of the period.
struct EventShare {
    std::size_t slice = 0;
    std::int64_t minutes = 0;
    /// Absent while money is off.
    std::optional<Decimal> cost;
};

/// Cuts the figures of events at the bounds of slices, so that every billed minute and every part
/// of a cent is in exactly one of them. A share is what the event counts in a period that ends with
/// the slice, less what it counts in one that ends before: the shares of an event add up to its
/// figures to the last digit, whatever is rounded on the way. An event without a length, with a
/// negative one or wholly outside the period is one share, in the slice in which it starts or the
/// nearest.
class EventShares {
public:
    /// Both must outlive this, and so must the events.
    EventShares(const Slices& slices, const BillingSettings& billing);

    /// The shares in order of their slices, at least one. Valid until the next call.
    [[nodiscard]] std::span<const EventShare> of(const Event& event);

private:
    void addShare(const Event& event, std::size_t slice, std::int64_t minutesUpToIt);

    const Slices& slices_;
    const BillingSettings& billing_;
    /// The settings with a period that ends earlier.
    BillingSettings shortened_;
    EventCosts costs_;
    std::vector<EventShare> shares_;
    std::int64_t minutesBefore_ = 0;
};

} // namespace quillet
