#pragma once

#include "calendars/CalendarGroup.h"
#include "calendars/CalendarGroupsArrayController.h"
#include "platform/ListController.h"
#include "platform/SettingsStore.h"

#include <cstdint>
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
    /// While it is set, no change starts a sync.
    [[nodiscard]] bool isCalendarsSyncing() const { return isCalendarsSyncing_; }
    void setIsCalendarsSyncing(bool isSyncing) { isCalendarsSyncing_ = isSyncing; }

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
    /// The group that was shown last: CalendarGroup::instance.
    std::uint64_t shownInstance_ = 0;
    std::vector<Observation> observations_;
};

} // namespace quillet
