#include "backends/combined/EventOrder.h"

#include <algorithm>
#include <iterator>

namespace quillet {

void mergeDelivered(EventList& events, EventList&& more) {
    if (events.empty()) {
        events = std::move(more);
        return;
    }
    const auto middle = static_cast<std::ptrdiff_t>(events.size());
    events.insert(events.end(), std::make_move_iterator(more.begin()),
                  std::make_move_iterator(more.end()));
    std::inplace_merge(events.begin(), events.begin() + middle, events.end(), isDeliveredBefore);
}

} // namespace quillet
