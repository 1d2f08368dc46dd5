#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace quillet {

/// Where an event is to be found by other programs.
struct EventPlace {
    /// The identifier under which the desktop's calendar service knows its calendar; empty when
    /// that is not one of the service's.
    QString serviceCalendar;
    /// The iCalendar file that holds it; empty when it is in none.
    QString file;
    /// Local time.
    std::optional<QDateTime> start;
    /// Of an occurrence of a series: see OccurrenceNames. Empty for any other event.
    QString occurrence = {};
    bool isException = false;

    friend bool operator==(const EventPlace&, const EventPlace&) = default;
};

} // namespace quillet
