#pragma once

#include "platform/EventStore.h"

#include <functional>
#include <vector>

namespace quillet {

/// Several stores side by side, seen as one. A store that is closed to the program or fails costs
/// only its own calendars.
class CombinedEventStore final : public EventStore {
public:
    /// The stores must outlive this one. Their order is the order of the calendars.
    explicit CombinedEventStore(std::vector<std::reference_wrapper<EventStore>> stores);

    /// The best answer that any of the stores gives: authorised before not determined before
    /// denied. Restricted means that no store can be reached at all.
    [[nodiscard]] AuthorizationStatus authorizationStatus() const override;
    /// Asks every store that has no answer yet, and completes when all have answered: granted when
    /// any is. The error is the first one.
    void requestAccess(AccessCompletion completion) override;
    [[nodiscard]] CalendarList calendars() const override;
    [[nodiscard]] EventList events(const CalendarList& calendars, Instant from,
                                   Instant to) const override;
    [[nodiscard]] Observation observeChanges(std::function<void()> callback) override;
    [[nodiscard]] std::vector<StoreProblem> problems() const override;

private:
    std::vector<std::reference_wrapper<EventStore>> stores_;
};

} // namespace quillet
