#include "insight/EventShares.h"

#include "eventdata/EventFigures.h"

#include <algorithm>
#include <chrono>

namespace quillet {

using namespace std::chrono_literals;

std::optional<Decimal> EventCosts::of(const Event& event, std::int64_t minutes) {
    if (!billing_.isMoneyOn) {
        return std::nullopt;
    }
    const StoreCalendar* calendar = event.details->calendar.get();
    if (calendar != lastCalendar_) {
        const auto [entry, isNew] = calendars_.try_emplace(calendar);
        if (isNew) {
            entry->second.rate = billableRate(event, billing_);
        }
        lastCalendar_ = calendar;
        lastCosts_ = &entry->second;
    }
    const auto [cost, isNew] = lastCosts_->costsByMinutes.try_emplace(minutes);
    if (isNew) {
        cost->second = billableCost(minutes, lastCosts_->rate, billing_).value_or(Decimal());
    }
    return cost->second;
}

EventShares::EventShares(const Slices& slices, const BillingSettings& billing)
    : slices_(slices)
    , billing_(billing)
    , shortened_(billing)
    , costs_(billing) {}

std::span<const EventShare> EventShares::of(const Event& event) {
    shares_.clear();
    minutesBefore_ = 0;
    const Instant start = std::max(event.startDate, billing_.periodStart);
    const Instant end = std::min(event.endDate, billing_.periodEnd);
    const std::size_t first = slices_.at(start);
    const std::size_t last = end > start ? slices_.at(end - 1ms) : first;
    for (std::size_t slice = first; slice < last; ++slice) {
        shortened_.periodEnd = slices_.end(slice);
        addShare(event, slice, billableMinutes(event, shortened_));
    }
    addShare(event, last, billableMinutes(event, billing_));
    return shares_;
}

void EventShares::addShare(const Event& event, std::size_t slice, std::int64_t minutesUpToIt) {
    EventShare share{.slice = slice,
                     .minutes = minutesUpToIt - minutesBefore_,
                     .cost = costs_.of(event, minutesUpToIt)};
    if (!shares_.empty() && share.cost) {
        *share.cost = *share.cost - costs_.of(event, minutesBefore_).value_or(Decimal());
    }
    minutesBefore_ = minutesUpToIt;
    shares_.push_back(share);
}

} // namespace quillet
