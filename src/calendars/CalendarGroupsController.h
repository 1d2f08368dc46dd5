#pragma once

#include "calendars/CalendarGroup.h"
#include "platform/ListController.h"
#include "platform/OneShotTimer.h"
#include "platform/Predicate.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <optional>
#include <utility>
#include <vector>

namespace quillet {

/// Narrows the calendar list to the ticked calendars of the chosen group.
class CalendarGroupsController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        ListController<CalendarRecord>& calendarsArrayController;
        const ListController<CalendarGroup>& calendarGroupsArrayController;
        OneShotTimer& timer;
    };

    explicit CalendarGroupsController(const Collaborators& collaborators);

    void awakeFromNib();

    /// Filters by the chosen group as it is now; the group at position 0 filters nothing, and one
    /// without a ticked calendar leaves no calendar.
    void updateFilterPredicate();
    /// Asks for a fetch.
    void triggerEventsArrayUpdate();

    /// The position of the chosen group; 0 when what is stored is no position in the list.
    [[nodiscard]] std::size_t calendarGroupsSelectedIndex() const;
    void setCalendarGroupsSelectedIndex(std::size_t position);

    /// Kept for whoever sets it: the groups filter the calendar list directly.
    [[nodiscard]] const std::optional<Predicate>& calendarsArrayControllerFilterPredicate() const {
        return calendarsArrayControllerFilterPredicate_;
    }
    void setCalendarsArrayControllerFilterPredicate(std::optional<Predicate> predicate) {
        calendarsArrayControllerFilterPredicate_ = std::move(predicate);
    }

private:
    Collaborators with_;
    std::optional<Predicate> calendarsArrayControllerFilterPredicate_;
    std::vector<Observation> observations_;
};

} // namespace quillet
