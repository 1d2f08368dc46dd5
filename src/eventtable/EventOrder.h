#pragma once

#include "eventdata/EventFields.h"
#include "platform/Collator.h"
#include "platform/ListController.h"

#include <memory>

namespace quillet {

enum class SortDirection { Ascending, Descending };

/// Sorts events by a column: numbers as numbers, dates by date, times by time of day, weekdays from
/// the first day of the week, texts as the language does, missing values first. Events that are
/// equal keep their order. What was worked out for one sorting serves the next. Main thread only.
class EventOrder {
public:
    /// All must outlive this and its sorters. The calendar is that of the user's locale.
    EventOrder(const EventFields& fields, const CalendarArithmetic& calendar,
               const Collator& collator);
    ~EventOrder();
    Q_DISABLE_COPY_MOVE(EventOrder)

    /// Of an identifier that is one of eventColumns().
    [[nodiscard]] ListController<Event>::Sorter sorter(const QString& columnIdentifier,
                                                       SortDirection direction);
    /// The time zone of the calendar is another one.
    void followZoneChange();

private:
    struct Known;
    std::unique_ptr<Known> known_;
};

} // namespace quillet
