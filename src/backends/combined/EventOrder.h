#pragma once

#include "platform/Event.h"

namespace quillet {

/// The order in which stores deliver events: by start, then end, then title.
[[nodiscard]] inline bool isDeliveredBefore(const Event& left, const Event& right) {
    if (left.startDate != right.startDate) {
        return left.startDate < right.startDate;
    }
    if (left.endDate != right.endDate) {
        return left.endDate < right.endDate;
    }
    return left.details->title < right.details->title;
}

/// Appends a run of events to others, both in the order of delivery, and keeps that order.
void mergeDelivered(EventList& events, EventList&& more);

} // namespace quillet
