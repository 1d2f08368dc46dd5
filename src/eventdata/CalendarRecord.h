#pragma once

#include "platform/Decimal.h"
#include "platform/SettingsStore.h"

#include <QString>
#include <QVariantMap>

#include <optional>
#include <vector>

namespace quillet {

/// One calendar of the user's list: an element of the stored array `calendars`.
struct CalendarRecord {
    /// The record's identity.
    QString calendarIdentifier;
    QString title;
    /// Money per hour; absent in records that were never given one.
    std::optional<Decimal> rate;
    /// Whether the calendar is ticked: its events are fetched.
    bool isSelected = false;
    /// The text shown in the list.
    QString titleWithRate;
    /// Members that this version does not know, written back as they came.
    QVariantMap otherMembers;
};

/// Members of a wrong type are read as the platform's typed getters do.
[[nodiscard]] CalendarRecord calendarRecordFromValue(const QVariant& value);
[[nodiscard]] QVariant valueFromCalendarRecord(const CalendarRecord& record);

/// The stored list `calendars`; elements that are no records are skipped.
[[nodiscard]] std::vector<CalendarRecord> storedCalendarRecords(const SettingsStore& settings);

} // namespace quillet
