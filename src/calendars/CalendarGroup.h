#pragma once

#include "eventdata/CalendarRecord.h"

#include <QString>
#include <QVariantMap>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillet {

/// One calendar in a group's checklist.
struct CalendarGroupEntry {
    QString calendarIdentifier;
    /// The calendar's title as of the last sync.
    QString title;
    /// Whether the calendar belongs to the group.
    bool isSelected = false;
    /// Members that this version does not know, written back as they came.
    QVariantMap otherMembers;

    friend bool operator==(const CalendarGroupEntry&, const CalendarGroupEntry&) = default;
};

using CalendarGroupEntries = std::vector<CalendarGroupEntry>;

/// A named set of calendars: an element of the stored array `calendarGroups`. The one at position 0
/// stands for no restriction and has no checklist.
struct CalendarGroup {
    QString calendarGroupName;
    CalendarGroupEntries calendarGroupArray;
    /// Members that this version does not know, written back as they came.
    QVariantMap otherMembers;
    /// Where the group stands in the list, from 0: what a selection follows. Not stored.
    std::size_t position = 0;
    /// Tells the group from every other of its list, whatever its position: it stays through edits
    /// and is new where the list was written from elsewhere. 0 before a list holds it. Not stored.
    std::uint64_t instance = 0;
};

/// Members of a wrong type are read as the platform's typed getters do; entries that are no
/// records are skipped.
[[nodiscard]] CalendarGroup calendarGroupFromValue(const QVariant& value);
[[nodiscard]] QVariant valueFromCalendarGroup(const CalendarGroup& group);

/// The stored list `calendarGroups`; elements that are no records are skipped.
[[nodiscard]] std::vector<CalendarGroup> storedCalendarGroups(const SettingsStore& settings);

/// A new checklist of every calendar, in the list's order, none of them ticked.
[[nodiscard]] CalendarGroupEntries
entriesForCalendars(const std::vector<CalendarRecord>& calendars);

/// A checklist brought into step with the calendars: entries without a calendar go, titles follow,
/// ticks stay. Where one calendar is missing it is appended, unticked. Where several are missing,
/// as many entries are appended and all of them are the last missing calendar's; the next
/// syncs append the others. Calendars without an identifier count as not there.
[[nodiscard]] CalendarGroupEntries syncedEntries(CalendarGroupEntries entries,
                                                 const std::vector<CalendarRecord>& calendars);

} // namespace quillet
