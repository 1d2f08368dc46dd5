#include "calendars/CalendarGroupsArraySelectedCalendarsArrayController.h"

#include "platform/Settings.h"

#include <utility>

namespace quillet {

CalendarGroupsArraySelectedCalendarsArrayController::
    CalendarGroupsArraySelectedCalendarsArrayController(
        SettingsStore& settings, CalendarGroupsArrayController& calendarGroupsArrayController)
    : ListController(
          [](const CalendarGroupEntry& entry) { return qHash(entry.calendarIdentifier); },
          [](const CalendarGroupEntry& left, const CalendarGroupEntry& right) {
              return left.calendarIdentifier == right.calendarIdentifier;
          })
    , settings_(settings)
    , groups_(calendarGroupsArrayController) {}

void CalendarGroupsArraySelectedCalendarsArrayController::awakeFromNib() {
    settings::isCalendarGroupsSheetActive.writeIfAbsent(settings_);
    setOrder([](const CalendarGroupEntry& left, const CalendarGroupEntry& right) {
        return left.title < right.title;
    });
    observations_.push_back(
        settings::calendars.observe(settings_, [this] { syncWhileSheetIsOpen(); }));
    connect(&groups_, &ListControllerNotices::selectedObjectsChanged, this,
            [this] { selectedGroupChanged(); });
    shownInstance_ = groups_.selectedInstance();
    reload();
    syncCalendars();
}

void CalendarGroupsArraySelectedCalendarsArrayController::syncCalendars() {
    if (groups_.selectionIndex() == 0) {
        return;
    }
    setIsCalendarsSyncing(true);
    settings::calendars.writeIfAbsent(settings_);
    CalendarGroupEntries entries = syncedEntries(*content(), storedCalendarRecords(settings_));
    if (entries != *content()) {
        writeBack(std::move(entries));
    }
    setIsCalendarsSyncing(false);
}

void CalendarGroupsArraySelectedCalendarsArrayController::setSelected(std::size_t row,
                                                                      bool isSelected) {
    CalendarGroupEntries entries = *content();
    const QString identifier = arranged(row).calendarIdentifier;
    for (CalendarGroupEntry& entry : entries) {
        if (entry.calendarIdentifier == identifier) {
            entry.isSelected = isSelected;
        }
    }
    writeBack(std::move(entries));
}

void CalendarGroupsArraySelectedCalendarsArrayController::selectedGroupChanged() {
    if (isWritingBack_) {
        return;
    }
    reload();
    // The groups announce their selection also when only a name or a tick was edited. That must
    // not sync: syncing is how further missing calendars come in.
    const std::uint64_t selected = groups_.selectedInstance();
    if (selected != std::exchange(shownInstance_, selected)) {
        syncWhileSheetIsOpen();
    }
}

void CalendarGroupsArraySelectedCalendarsArrayController::syncWhileSheetIsOpen() {
    if (!isCalendarsSyncing_ && settings::isCalendarGroupsSheetActive.read(settings_)) {
        syncCalendars();
    }
}

void CalendarGroupsArraySelectedCalendarsArrayController::reload() {
    setContent(groups_.arrangedCount() == 0
                   ? CalendarGroupEntries()
                   : groups_.arranged(groups_.selectionIndex()).calendarGroupArray);
}

void CalendarGroupsArraySelectedCalendarsArrayController::writeBack(CalendarGroupEntries entries) {
    isWritingBack_ = true;
    groups_.setCalendarGroupArray(groups_.selectionIndex(), entries);
    isWritingBack_ = false;
    setContent(std::move(entries));
}

} // namespace quillet
