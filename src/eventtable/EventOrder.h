#pragma once

#include "eventdata/EventFields.h"
#include "platform/ListController.h"

namespace quillet {

enum class SortDirection { Ascending, Descending };

/// Sorts events by a column: numbers as numbers, dates by date, times by time of day, weekdays from
/// the first day of the week, texts without regard to case, missing values first. Events that are
/// equal keep their order.
[[nodiscard]] ListController<Event>::Sorter eventSorter(const QString& columnIdentifier,
                                                        SortDirection direction,
                                                        const EventFields& fields,
                                                        const CalendarArithmetic& calendar);

} // namespace quillet
