#pragma once

#include "insight/Amounts.h"
#include "insight/DayKinds.h"

#include <QString>

#include <array>
#include <vector>

namespace quillet {

constexpr std::size_t daysOfAGridWeek = 7;

enum class GridRows { Calendars, Titles };

struct GridCell {
    Amounts amounts;
    /// The events that have a part in the cell, ascending.
    std::vector<EventIndex> events;
};

struct GridRow {
    /// The calendar's title or the events' title; empty where they have none.
    QString text;
    /// Of a row of a calendar.
    QString calendarIdentifier;
    std::array<GridCell, daysOfAGridWeek> cells;
    Amounts sum;
};

struct GridDay {
    /// The start of the local day.
    Instant start;
    /// False for the days beside the period that fill up its first and its last week.
    bool isInPeriod = false;
    DayKind kind = DayKind::Workday;
};

struct GridWeek {
    /// From the locale's first day of the week on.
    std::array<GridDay, daysOfAGridWeek> days;
    /// The calendars or titles of this week alone, in order of their first events in the list.
    std::vector<GridRow> rows;
    std::array<Amounts, daysOfAGridWeek> daySums;
    Amounts sum;
};

/// Calendars or titles by days, week by week.
struct WeekGrid {
    GridRows rows = GridRows::Calendars;
    /// Every week of the period, those without events too.
    std::vector<GridWeek> weeks;
    /// Of all events: what the results panel shows.
    Amounts total;
};

/// Every minute and every part of a cent is in exactly one cell: an event that lasts from a day
/// into the next is in the cells of both, with the time that falls on each. `holidays` are the
/// events of the calendar of holidays, if the user named one.
[[nodiscard]] WeekGrid weekGridOf(const InsightInput& input, GridRows rows,
                                  std::span<const Event> holidays = {});

/// What the cells of a grid say.
enum class GridValue { Time, Money };

/// One week as rows with tabs: a heading with the days, the rows, the sums of the days; the sums of
/// the rows on the right. Cells without events are empty.
[[nodiscard]] QString gridWeekText(const GridWeek& week, GridRows rows, GridValue value,
                                   TimeUnit unit, const LocaleFormats& formats);
/// All weeks, parted by empty lines, and the total.
[[nodiscard]] QString gridText(const WeekGrid& grid, GridValue value, TimeUnit unit,
                               const LocaleFormats& formats);

} // namespace quillet
