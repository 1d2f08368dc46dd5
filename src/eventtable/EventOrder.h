#pragma once

#include "eventdata/EventFields.h"
#include "eventtable/EventColumns.h"
#include "platform/CalendarArithmetic.h"
#include "platform/Event.h"
#include "platform/ListController.h"

namespace quillet {

enum class SortDirection { Ascending, Descending };

/// The order of events by what a column shows: dates by date, times by time of day, weekdays from
/// the locale's first one, numbers, money and durations by amount, texts as the language sorts them
/// without regard to case. A missing value stands before all others. Events that are equal in the
/// column keep the store's order, in both directions.
///
/// `fields` and `calendar` must outlive the order. The calendar is in the system time zone.
[[nodiscard]] ListController<Event>::PreparedOrder eventOrder(EventColumnName column,
                                                              SortDirection direction,
                                                              const EventFields& fields,
                                                              const CalendarArithmetic& calendar);

} // namespace quillet
