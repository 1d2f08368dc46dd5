#pragma once

#include "platform/Event.h"
#include "platform/Instant.h"
#include "platform/Observation.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillet {

enum class AuthorizationStatus { NotDetermined = 0, Restricted = 1, Denied = 2, Authorized = 3 };

/// Something that a store could not read, for the foot of the calendar list.
struct StoreProblem {
    /// The calendar's title or the file's name, as the user knows it.
    QString subject;
    /// What is wrong, in a sentence fragment ("not a calendar file").
    QString reason;

    friend bool operator==(const StoreProblem&, const StoreProblem&) = default;
};

using CalendarList = std::vector<std::shared_ptr<const StoreCalendar>>;

/// Read access to the user's calendars.
class EventStore {
public:
    /// What the user answered; the error's description when the question itself failed. May be
    /// called on any thread.
    using AccessCompletion = std::function<void(bool isGranted, std::optional<QString> error)>;

    virtual ~EventStore() = default;

    [[nodiscard]] virtual AuthorizationStatus authorizationStatus() const = 0;
    virtual void requestAccess(AccessCompletion completion) = 0;
    /// Every event calendar, in the store's order. Main thread.
    [[nodiscard]] virtual CalendarList calendars() const = 0;
    /// The events of the calendars that overlap [from, to): they start before `to`, and end after
    /// `from` or, when they have no length, start at or after it. Ordered by start, then end, then
    /// title. Cancelled events and occurrences are not events. Safe to call from any thread.
    [[nodiscard]] virtual EventList events(const CalendarList& calendars, Instant from,
                                           Instant to) const = 0;
    /// Calls back on the main thread after calendars, events or problems changed.
    [[nodiscard]] virtual Observation observeChanges(std::function<void()> callback) = 0;
    /// What could not be read, worst first. Main thread.
    [[nodiscard]] virtual std::vector<StoreProblem> problems() const = 0;
};

} // namespace quillet
