#include "calendars/CalendarGroup.h"

#include "platform/Settings.h"

#include <algorithm>

namespace quillet {

namespace {

const QString nameMember = QStringLiteral("calendarGroupName");
const QString entriesMember = QStringLiteral("calendarGroupArray");
const QString identifierMember = QStringLiteral("calendarIdentifier");
const QString titleMember = QStringLiteral("title");
const QString isSelectedMember = QStringLiteral("isSelected");

CalendarGroupEntry entryFromValue(const QVariant& value) {
    QVariantMap members = value.toMap();
    CalendarGroupEntry entry;
    entry.calendarIdentifier = stringFromValue(members.take(identifierMember));
    entry.title = stringFromValue(members.take(titleMember));
    entry.isSelected = boolFromValue(members.take(isSelectedMember));
    entry.otherMembers = members;
    return entry;
}

QVariant valueFromEntry(const CalendarGroupEntry& entry) {
    QVariantMap members = entry.otherMembers;
    members.insert(identifierMember, entry.calendarIdentifier);
    members.insert(titleMember, entry.title);
    members.insert(isSelectedMember, entry.isSelected);
    return members;
}

bool isRecord(const QVariant& value) {
    return value.typeId() == QMetaType::QVariantMap;
}

CalendarGroupEntry newEntry(const CalendarRecord& calendar) {
    return {.calendarIdentifier = calendar.calendarIdentifier,
            .title = calendar.title,
            .isSelected = false,
            .otherMembers = {}};
}

template <typename Records>
bool holds(const Records& records, const QString& identifier) {
    return std::ranges::any_of(
        records, [&](const auto& record) { return record.calendarIdentifier == identifier; });
}

} // namespace

CalendarGroup calendarGroupFromValue(const QVariant& value) {
    QVariantMap members = value.toMap();
    CalendarGroup group;
    group.calendarGroupName = stringFromValue(members.take(nameMember));
    for (const QVariant& element : members.take(entriesMember).toList()) {
        if (isRecord(element)) {
            group.calendarGroupArray.push_back(entryFromValue(element));
        }
    }
    group.otherMembers = members;
    return group;
}

QVariant valueFromCalendarGroup(const CalendarGroup& group) {
    QVariantMap members = group.otherMembers;
    QVariantList entries;
    for (const CalendarGroupEntry& entry : group.calendarGroupArray) {
        entries.append(valueFromEntry(entry));
    }
    members.insert(nameMember, group.calendarGroupName);
    members.insert(entriesMember, entries);
    return members;
}

std::vector<CalendarGroup> storedCalendarGroups(const SettingsStore& settings) {
    std::vector<CalendarGroup> groups;
    for (const QVariant& element : settings::calendarGroups.read(settings)) {
        if (isRecord(element)) {
            groups.push_back(calendarGroupFromValue(element));
        }
    }
    return groups;
}

CalendarGroupEntries entriesForCalendars(const std::vector<CalendarRecord>& calendars) {
    CalendarGroupEntries entries;
    std::ranges::transform(calendars, std::back_inserter(entries), newEntry);
    return entries;
}

CalendarGroupEntries syncedEntries(CalendarGroupEntries entries,
                                   const std::vector<CalendarRecord>& calendars) {
    std::vector<CalendarRecord> present = calendars;
    std::erase_if(present, [](const CalendarRecord& calendar) {
        return calendar.calendarIdentifier.isEmpty();
    });
    std::vector<CalendarRecord> missing = present;
    std::erase_if(missing, [&](const CalendarRecord& calendar) {
        return holds(entries, calendar.calendarIdentifier);
    });
    if (!missing.empty()) {
        // One entry is filled for each missing calendar in turn and appended each time, so that all
        // that were appended show the last one. This is intended.
        entries.insert(entries.end(), missing.size(), newEntry(missing.back()));
    }
    std::erase_if(entries, [&](const CalendarGroupEntry& entry) {
        return !holds(present, entry.calendarIdentifier);
    });
    for (const CalendarRecord& calendar : present) {
        for (CalendarGroupEntry& entry : entries) {
            if (entry.calendarIdentifier == calendar.calendarIdentifier) {
                entry.title = calendar.title;
            }
        }
    }
    return entries;
}

} // namespace quillet
