#pragma once

#include "insight/Summary.h"
#include "platform/Collator.h"

#include <QString>

namespace quillet {

enum class SummaryColumn { Name, Events, Time, Money, Share };
enum class SortDirection { Ascending, Descending };

/// Sorts both levels; rows that are equal keep their order, and money that is not a number comes
/// last in either direction. Names of days, weeks and months sort by time.
void sortSummary(Summary& summary, SummaryColumn column, SortDirection direction,
                 const Collator& collator);

/// The name of a row in the user's words: "3/4/24", "3/4/24 – 3/10/24", "March 2024", a title.
[[nodiscard]] QString summaryRowName(const SummaryRow& row, const LocaleFormats& formats);

/// What parts rows from the whole, in a sentence or two; empty where they add up as shown.
[[nodiscard]] QString differenceText(const RowsDifference& difference,
                                     const LocaleFormats& formats);

/// The whole tree as rows with tabs: a heading, rows, differences and last the total. Names of the
/// second level stand in the second cell.
[[nodiscard]] QString summaryText(const Summary& summary, TimeUnit unit,
                                  const LocaleFormats& formats);

/// The heading of the column of times.
[[nodiscard]] QString timeUnitTitle(TimeUnit unit);

} // namespace quillet
