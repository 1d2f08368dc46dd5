#pragma once

#include "platform/Instant.h"

#include <QMetaType>
#include <QString>

#include <memory>
#include <vector>

namespace quillet {

/// One calendar of a store.
struct StoreCalendar {
    /// Stable across restarts and renames; holds no double quote and no backslash.
    QString calendarIdentifier;
    QString title;
    /// "#RRGGBB" or a CSS colour name; empty when the store names none.
    QString colorName;

    friend bool operator==(const StoreCalendar&, const StoreCalendar&) = default;
};

/// What all occurrences of one event share. A missing text is a null QString.
struct EventDetails {
    std::shared_ptr<const StoreCalendar> calendar;
    QString title;
    QString location;
    QString notes;
    QString url;
    /// The identifier under which the outside knows the event (its UID).
    QString eventIdentifier;
    bool isAllDay = false;
};

/// One event of a calendar, or one occurrence of a recurring one, as the store delivers it. Small
/// and cheap to copy.
struct Event {
    /// Inclusive. An all-day event starts at the first instant of its first day, local time.
    Instant startDate;
    /// Exclusive. An all-day event ends at the first instant of the day after its last.
    Instant endDate;
    /// Which occurrence of a recurring event this is: its original start. The epoch for an event
    /// that does not recur, so that moving such an event does not change its identity.
    Instant occurrenceDate;
    /// Never empty.
    std::shared_ptr<const EventDetails> details;
};

/// Whether both stand for the same occurrence of the same event of the same calendar, whatever
/// else about it has changed.
[[nodiscard]] bool isSameEvent(const Event& left, const Event& right);

/// A hash that agrees with isSameEvent().
[[nodiscard]] std::size_t eventIdentityHash(const Event& event);

using EventList = std::vector<Event>;

} // namespace quillet
