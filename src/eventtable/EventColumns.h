#pragma once

#include "eventdata/EventTotals.h"
#include "eventtable/EventKeys.h"
#include "eventtable/EventTexts.h"
#include "platform/LocaleFormats.h"
#include "platform/Setting.h"

#include <QString>

#include <optional>
#include <span>
#include <variant>

namespace quillet {

/// Which time column is shown; any other stored value changes nothing.
enum class TimeType { Hours = 1, Minutes = 2, Duration = 3 };

/// What kind of value a column shows.
enum class ColumnKind {
    Text,     ///< Free text of the user's.
    Link,     ///< The address of something.
    Date,     ///< A day.
    Time,     ///< A time of day.
    Weekday,  ///< The name of a day of the week.
    Number,   ///< A plain number.
    Duration, ///< Hours and minutes.
    Money,    ///< An amount; shown only while money is on.
};

/// Whether values of a kind stand below one another by their last digits.
[[nodiscard]] constexpr bool isNumeric(ColumnKind kind) {
    return kind == ColumnKind::Number || kind == ColumnKind::Duration || kind == ColumnKind::Money;
}

/// Where a column stands in the layout that every user has.
struct DefaultPlacement {
    int widthPoints;
    /// 0 is the leftmost; indexes repeat and leave gaps.
    int index;
    bool isHidden;
};

/// All that there is to know about one column of the event table.
struct EventColumn {
    /// By which everyone knows the column.
    const char* identifier;
    /// With which the column's keys in a layout begin.
    const char* stem;
    /// What the user calls it.
    const Setting<QString>& title;
    /// Whether the table has it; the three time columns share one setting.
    const Setting<bool>& visibility;
    DefaultPlacement placement;
    ColumnKind kind;
    /// What it shows: a text of the event's own, or one that is made of it.
    std::variant<StoredText, EventTexts::Field> text;
    EventKey order;
    /// The sum below a report; null for a column without one.
    QString (*sum)(const EventTotals& totals, const LocaleFormats& formats) = nullptr;
    /// Whether files of separated values quote its field; null where they always do.
    const Setting<bool>* quotes = nullptr;
    /// The time type that shows the column; nothing for a column that is none of time.
    std::optional<TimeType> timeType = std::nullopt;
    /// Whether a dot in the color of the event's calendar stands before the text.
    bool hasCalendarDot = false;
};

/// The columns in the order in which they are declared and layouts handle them.
[[nodiscard]] std::span<const EventColumn> eventColumns();
/// In the order in which a start writes the titles that are absent.
[[nodiscard]] std::span<const EventColumn* const> columnsInOrderOfTitles();
/// In the order in which their visibility is settled.
[[nodiscard]] std::span<const EventColumn* const> columnsInOrderOfVisibility();

/// The column of an identifier; null when there is none.
[[nodiscard]] const EventColumn* findEventColumn(const QString& identifier);
/// The column of an identifier, which must be one of eventColumns().
[[nodiscard]] const EventColumn& eventColumn(const QString& identifier);

} // namespace quillet
