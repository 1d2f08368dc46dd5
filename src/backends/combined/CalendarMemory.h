#pragma once

#include "platform/EventStore.h"

namespace quillet {

/// The calendars that a store had when it could last be reached, kept from one run to the next. A
/// store that is slow to start or away must not look like one without calendars, for then their
/// rates would be dropped.
class CalendarMemory {
public:
    /// Takes what the file holds; nothing when that is not usable. Without a path nothing is kept.
    explicit CalendarMemory(QString path);

    [[nodiscard]] const CalendarList& calendars() const { return calendars_; }
    /// A failure to write costs nothing but the memory, and is logged.
    void keep(const CalendarList& calendars);

private:
    QString path_;
    CalendarList calendars_;
};

} // namespace quillet
