#include "eventdata/CalendarRecord.h"

#include "platform/Settings.h"

namespace quillet {

namespace {

const QString identifierMember = QStringLiteral("calendarIdentifier");
const QString titleMember = QStringLiteral("title");
const QString rateMember = QStringLiteral("rate");
const QString isSelectedMember = QStringLiteral("isSelected");
const QString titleWithRateMember = QStringLiteral("titleWithRate");

} // namespace

CalendarRecord calendarRecordFromValue(const QVariant& value) {
    QVariantMap members = value.toMap();
    CalendarRecord record;
    record.calendarIdentifier = stringFromValue(members.take(identifierMember));
    record.title = stringFromValue(members.take(titleMember));
    if (const QVariant rate = members.take(rateMember); rate.isValid()) {
        const Decimal number = decimalFromValue(rate);
        record.rate = number.isNaN() ? Decimal() : number;
    }
    record.isSelected = boolFromValue(members.take(isSelectedMember));
    record.titleWithRate = stringFromValue(members.take(titleWithRateMember));
    record.otherMembers = members;
    return record;
}

QVariant valueFromCalendarRecord(const CalendarRecord& record) {
    QVariantMap members = record.otherMembers;
    members.insert(identifierMember, record.calendarIdentifier);
    members.insert(titleMember, record.title);
    if (record.rate) {
        members.insert(rateMember, QVariant::fromValue(*record.rate));
    }
    members.insert(isSelectedMember, record.isSelected);
    members.insert(titleWithRateMember, record.titleWithRate);
    return members;
}

std::vector<CalendarRecord> storedCalendarRecords(const SettingsStore& settings) {
    std::vector<CalendarRecord> records;
    for (const QVariant& element : settings::calendars.read(settings)) {
        if (element.typeId() == QMetaType::QVariantMap) {
            records.push_back(calendarRecordFromValue(element));
        }
    }
    return records;
}

} // namespace quillet
