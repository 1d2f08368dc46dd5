#pragma once

#include "calendars/CalendarGroup.h"
#include "calendars/CalendarGroupsArrayController.h"
#include "platform/ListController.h"
#include "platform/SettingsStore.h"

#include <utility>
#include <vector>

namespace quillet {

/// The checklist of the selected group, by title. Its content is the group's entries: every tick is
/// written back at once. While the groups sheet is open it is kept in step with the calendar list.
class CalendarGroupsArraySelectedCalendarsArrayController
    : public ListController<CalendarGroupEntry> {
public:
    CalendarGroupsArraySelectedCalendarsArrayController(
        SettingsStore& settings, CalendarGroupsArrayController& calendarGroupsArrayController);

    void awakeFromNib();

    /// Adds calendars that are missing, drops those that are gone, refreshes titles. Does nothing
    /// for the group at position 0, which has no checklist.
    void syncCalendars();
    [[nodiscard]] bool isCalendarsSyncing() const { return isCalendarsSyncing_; }

    /// Ticks or clears the calendar in an arranged row, and with it the other rows of the same
    /// calendar, which are one entry.
    void setSelected(std::size_t row, bool isSelected);

private:
    void selectedGroupChanged();
    void syncWhileSheetIsOpen();
    void reload();
    void writeBack(CalendarGroupEntries entries);

    SettingsStore& settings_;
    CalendarGroupsArrayController& groups_;
    bool isCalendarsSyncing_ = false;
    bool isWritingBack_ = false;
    /// The position of the group that is shown, and the number of groups.
    std::pair<std::size_t, std::size_t> shown_;
    std::vector<Observation> observations_;
};

} // namespace quillet
