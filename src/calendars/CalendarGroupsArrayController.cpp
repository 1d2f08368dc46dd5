#include "calendars/CalendarGroupsArrayController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr int deleteButton = 0;

} // namespace

CalendarGroupsArrayController::CalendarGroupsArrayController(SettingsStore& settings,
                                                             AlertPresenter& alerts)
    : ListController([](const CalendarGroup& group) { return group.position; },
                     [](const CalendarGroup& left, const CalendarGroup& right) {
                         return left.position == right.position;
                     })
    , settings_(settings)
    , alerts_(alerts) {}

void CalendarGroupsArrayController::awakeFromNib() {
    settings::calendarGroups.writeIfAbsent(settings_);
    settings::isCalendarGroupsSheetActive.writeIfAbsent(settings_);
    show(storedCalendarGroups(settings_));
    if (!settings::isDefaultAllCalendarsGroupCreated.isStored(settings_)) {
        createDefaultAllCalendarsGroup();
        settings::isDefaultAllCalendarsGroupCreated.reset(settings_);
    }
    observations_.push_back(
        settings::isCalendarGroupsSheetActive.observe(settings_, [this] { sheetChanged(); }));
    observations_.push_back(settings::calendarGroups.observe(settings_, [this] {
        if (!isWritingBack_) {
            show(storedCalendarGroups(settings_));
        }
    }));
    updateAllCalendarsGroupName();
}

void CalendarGroupsArrayController::createDefaultAllCalendarsGroup() {
    std::vector<CalendarGroup> groups = *content();
    groups.push_back({.calendarGroupName = localized("All Calendars"),
                      .calendarGroupArray = {},
                      .otherMembers = {}});
    writeBack(std::move(groups));
}

void CalendarGroupsArrayController::updateAllCalendarsGroupName() {
    if (arrangedCount() > 0) {
        setCalendarGroupName(0, localized("All Calendars"));
    }
}

void CalendarGroupsArrayController::addCalendarGroup() {
    if (content()->empty()) {
        // Position 0 belongs to it, also in a list that was emptied.
        createDefaultAllCalendarsGroup();
    }
    std::vector<CalendarGroup> groups = *content();
    const std::size_t position = groups.size();
    groups.push_back(
        {.calendarGroupName = localized("New Group") + QStringLiteral(" %1").arg(position),
         .calendarGroupArray = entriesForCalendars(storedCalendarRecords(settings_)),
         .otherMembers = {}});
    writeBack(std::move(groups));
    setSelectedRows({position});
}

void CalendarGroupsArrayController::removeCalendarGroup() {
    if (selectionIndex() == 0) {
        (void)alerts_.runModal({.style = AlertStyle::Warning,
                                .messageText = localized("Cannot delete All Calendars"),
                                .informativeText = {},
                                .buttonTitles = {localized("OK")}});
        return;
    }
    const int answer = alerts_.runModal({.style = AlertStyle::Warning,
                                         .messageText = localized("Delete the group?"),
                                         .informativeText = {},
                                         .buttonTitles = {localized("OK"), localized("Cancel")}});
    // Read again: the list may have been written from elsewhere while the alert was up.
    const std::size_t position = selectionIndex();
    if (answer != deleteButton || position == 0) {
        return;
    }
    std::vector<CalendarGroup> groups = *content();
    groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(position));
    writeBack(std::move(groups));
}

std::size_t CalendarGroupsArrayController::selectionIndex() const {
    return selectedRows().empty() ? 0 : selectedRows().front();
}

std::uint64_t CalendarGroupsArrayController::selectedInstance() const {
    return arrangedCount() == 0 ? 0 : arranged(selectionIndex()).instance;
}

void CalendarGroupsArrayController::setCalendarGroupName(std::size_t position,
                                                         const QString& name) {
    std::vector<CalendarGroup> groups = *content();
    if (position >= groups.size()) {
        return;
    }
    groups[position].calendarGroupName = name;
    writeBack(std::move(groups));
}

void CalendarGroupsArrayController::setCalendarGroupArray(std::size_t position,
                                                          CalendarGroupEntries entries) {
    std::vector<CalendarGroup> groups = *content();
    if (position >= groups.size()) {
        return;
    }
    groups[position].calendarGroupArray = std::move(entries);
    writeBack(std::move(groups));
}

void CalendarGroupsArrayController::sheetChanged() {
    if (settings::isCalendarGroupsSheetActive.read(settings_)) {
        // There and back, so that everything that shows the selected group is built anew.
        const std::size_t position = selectionIndex();
        setSelectedRows({0});
        setSelectedRows({position});
    }
}

void CalendarGroupsArrayController::show(std::vector<CalendarGroup> groups) {
    for (std::size_t position = 0; position < groups.size(); ++position) {
        groups[position].position = position;
        if (groups[position].instance == 0) {
            groups[position].instance = ++lastInstance_;
        }
    }
    const std::size_t selected = selectionIndex();
    setContent(std::move(groups));
    if (selectedRows().empty() && arrangedCount() > 0) {
        setSelectedRows({std::min(selected, arrangedCount() - 1)});
    }
}

void CalendarGroupsArrayController::writeBack(std::vector<CalendarGroup> groups) {
    show(std::move(groups));
    // From the content: whoever was told of the change may have changed the groups further.
    QVariantList values;
    std::ranges::transform(*content(), std::back_inserter(values), valueFromCalendarGroup);
    isWritingBack_ = true;
    settings::calendarGroups.write(settings_, values);
    isWritingBack_ = false;
}

} // namespace quillet
