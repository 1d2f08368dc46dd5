#pragma once

#include <QString>

#include <array>

namespace quillet {

enum class EventColumnName {
    Date,
    Hours,
    Title,
    Notes,
    Url,
    Location,
    Weekday,
    EndWeekday,
    Cost,
    Start,
    End,
    EndDate,
    Calendar,
    Rate,
    Duration,
    Minutes,
};

/// What is fixed about one column of the event table.
struct EventColumn {
    EventColumnName name;
    /// The column's name in the table.
    QString identifier;
    /// What the column's members of a column layout begin with.
    QString stem;
    /// The field of an event that the column shows; see EventFields.
    QString field;
    /// The settings key of the title.
    QString titleKey;
    /// English; the key of the string table.
    const char* defaultTitle;
    /// The settings key of the visibility; the three time columns share one.
    QString visibilityKey;
    bool isVisibleByDefault;
};

inline constexpr std::size_t eventColumnCount = 16;

/// All columns, in the order in which they are declared, stored in layouts and handled.
[[nodiscard]] const std::array<EventColumn, eventColumnCount>& eventColumns();

[[nodiscard]] const EventColumn& eventColumn(EventColumnName name);

/// Null when no column has that identifier.
[[nodiscard]] const EventColumn* eventColumnWithIdentifier(const QString& identifier);

} // namespace quillet
