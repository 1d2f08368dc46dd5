#pragma once

#include "insight/Amounts.h"
#include "insight/RoundedBilling.h"
#include "insight/Slices.h"

#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// By what a level of the summary groups.
enum class SummaryKey { Calendar, Day, Week, Month, Title, Location };

/// One row of the tree.
struct SummaryRow {
    SummaryKey key = SummaryKey::Calendar;
    /// The calendar's title, the title or the location, as the events have it; empty where they
    /// have none. Null for days, weeks and months.
    QString text;
    /// Of a calendar.
    QString calendarIdentifier;
    /// Of a day, week or month, as far as it lies inside the period: [start, end).
    Instant start;
    Instant end;
    Amounts amounts;
    /// With what rounding adds; the same as `amounts` where nothing is rounded.
    Amounts billed;
    /// The events that have a part in the row, ascending. One that lasts from a day into the next
    /// is in the rows of both, with the time that falls on each.
    std::vector<EventIndex> events;
    /// The second level.
    std::vector<SummaryRow> children;
};

/// The events' time and money as a tree of one or two levels.
struct Summary {
    /// Days, weeks and months in their order; calendars and texts in order of their first events.
    std::vector<SummaryRow> rows;
    /// Of all events: what the results panel shows.
    Amounts total;
    /// The total of the rounded bill.
    Amounts billedTotal;
    std::size_t eventCount = 0;
};

/// Groups the events by one key, or by a second one inside the first. Every minute and every part
/// of a cent is in one row, and once in its children: amounts add up to the total to the last
/// digit. The second key is left alone where it is the first. With the surpluses of a rounded bill
/// over the same events the rows tell what is billed, too.
[[nodiscard]] Summary summaryOf(const InsightInput& input, SummaryKey first,
                                std::optional<SummaryKey> second = std::nullopt,
                                std::span<const BilledSurplus> surpluses = {});

/// What rows, as they are shown, lack to what is shown for the whole of them; what they have too
/// much is negative.
struct RowsDifference {
    /// Events that stand in more than one row, each time but the first.
    std::int64_t events = 0;
    /// In the shown unit.
    Decimal time;
    /// Absent while money is off or not a number.
    std::optional<Decimal> money;

    /// Whether the rows add up as they are shown.
    [[nodiscard]] bool isNone() const;
};

/// Of the first level to the total.
[[nodiscard]] RowsDifference differenceOf(const Summary& summary, TimeUnit unit,
                                          const LocaleFormats& formats);
/// Of a row's children to the row.
[[nodiscard]] RowsDifference differenceOf(const SummaryRow& row, TimeUnit unit,
                                          const LocaleFormats& formats);

} // namespace quillet
