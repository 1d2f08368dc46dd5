#pragma once

#include "calendars/CalendarGroup.h"
#include "platform/Alert.h"
#include "platform/ListController.h"
#include "platform/SettingsStore.h"

#include <vector>

namespace quillet {

/// The user's calendar groups. Its content is the stored array `calendarGroups`: every change is
/// written back at once, and a write from elsewhere is shown at once. Rows are positions: the list
/// is neither sorted nor filtered. While there are groups, one of them is selected.
class CalendarGroupsArrayController : public ListController<CalendarGroup> {
public:
    CalendarGroupsArrayController(SettingsStore& settings, AlertPresenter& alerts);

    void awakeFromNib();

    /// Appends "All Calendars", without a checklist.
    void createDefaultAllCalendarsGroup();
    /// Gives the group at position 0 its name in the user's language again.
    void updateAllCalendarsGroupName();
    /// Appends "New Group" with the number of groups so far and a checklist of every stored
    /// calendar, none ticked, and selects it. An empty list gets "All Calendars" first.
    void addCalendarGroup();
    /// Removes the selected group after asking; refuses for the one at position 0.
    void removeCalendarGroup();

    /// The position of the selected group; 0 while there is none.
    [[nodiscard]] std::size_t selectionIndex() const;
    /// Which group that is, wherever it stands: CalendarGroup::instance. 0 while there is none.
    [[nodiscard]] std::uint64_t selectedInstance() const;
    /// A position beyond the list changes nothing, here and below.
    void setCalendarGroupName(std::size_t position, const QString& name);
    void setCalendarGroupArray(std::size_t position, CalendarGroupEntries entries);

private:
    void sheetChanged();
    void show(std::vector<CalendarGroup> groups);
    void writeBack(std::vector<CalendarGroup> groups);

    SettingsStore& settings_;
    AlertPresenter& alerts_;
    bool isWritingBack_ = false;
    std::uint64_t lastInstance_ = 0;
    std::vector<Observation> observations_;
};

} // namespace quillet
