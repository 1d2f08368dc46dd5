#pragma once

#include "platform/Instant.h"

#include <QMetaType>
#include <QSharedData>
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

/// How other programs tell the occurrences of one recurring event apart.
class OccurrenceNames : public QSharedData {
public:
    OccurrenceNames() = default;
    OccurrenceNames(const OccurrenceNames&) = delete;
    OccurrenceNames& operator=(const OccurrenceNames&) = delete;
    virtual ~OccurrenceNames() = default;

    /// The name of the occurrence of that Event::occurrenceDate: its original start in the zone of
    /// the series ("20240306T100000").
    [[nodiscard]] virtual QString nameOf(Instant occurrenceDate) const = 0;
    /// Whether the calendar holds the occurrence as an exception of the rule, by that name.
    [[nodiscard]] virtual bool isException() const = 0;
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
    /// Null for an event that does not recur. One pointer, for most events do not.
    QExplicitlySharedDataPointer<const OccurrenceNames> occurrenceNames = {};
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
