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
    using Groups = ListController<CalendarGroup>::Content;

    /// The chosen group stays chosen where others come before it or go, and where the list was
    /// written from elsewhere; when it is gone, All Calendars is chosen.
    void followChosenGroup();
    void noteChosenGroup();

    Collaborators with_;
    /// The groups and the chosen one's position among them, 0 for All Calendars, as they last were.
    Groups groups_;
    std::size_t chosen_ = 0;
    /// The position is being written because the groups changed, not because another one is chosen.
    bool isFollowing_ = false;
    std::optional<Predicate> calendarsArrayControllerFilterPredicate_;
    std::vector<Observation> observations_;
};

} // namespace quillet
