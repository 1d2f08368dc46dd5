#pragma once

#include <QString>

#include <array>
#include <span>

namespace quillet {

/// One column of the event table.
struct EventColumn {
    /// By which everyone knows the column.
    const char* identifier;
    /// With which the column's keys in a layout begin.
    const char* stem;
    /// The settings key of its title, and the English title that is its default.
    const char* titleKey;
    const char* defaultTitle;
    /// The settings key of its visibility; the three time columns share one.
    const char* visibilityKey;
    bool isVisibleByDefault;
};

/// The sixteen columns in the order in which they are declared and layouts handle them.
[[nodiscard]] std::span<const EventColumn, 16> eventColumns();

/// The column of an identifier, which must be one of the sixteen.
[[nodiscard]] const EventColumn& eventColumn(const QString& identifier);

/// Which time column is shown; any other stored value changes nothing.
enum class TimeType { Hours = 1, Minutes = 2, Duration = 3 };

} // namespace quillet
