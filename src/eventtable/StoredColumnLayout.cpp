#include "eventtable/StoredColumnLayout.h"

#include "eventtable/EventColumns.h"
#include "platform/SettingsStore.h"

#include <algorithm>
#include <limits>

namespace quillet {

namespace {

const QString nameMember = QStringLiteral("columnLayoutName");

QString member(const EventColumn& column, const char* suffix) {
    return QString::fromLatin1(column.stem) + QString::fromLatin1(suffix);
}

int boundedInteger(const QVariant& value) {
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(integerFromValue(value), lowest, highest));
}

/// A place outside the table, where the column stays, when there is none.
int indexFromValue(const QVariant& value) {
    return value.isValid() ? boundedInteger(value) : -1;
}

} // namespace

StoredColumnLayout columnLayoutFromValue(const QVariant& value) {
    QVariantMap members = value.toMap();
    StoredColumnLayout layout;
    layout.columnLayoutName = stringFromValue(members.take(nameMember));
    for (const EventColumn& column : eventColumns()) {
        layout.placements.push_back(
            {.identifier = QString::fromLatin1(column.identifier),
             .title = stringFromValue(members.take(member(column, "ColumnName"))),
             .widthPoints = boundedInteger(members.take(member(column, "ColumnWidth"))),
             .index = indexFromValue(members.take(member(column, "ColumnIndex"))),
             .isHidden = boolFromValue(members.take(member(column, "ColumnIsHidden")))});
    }
    layout.otherMembers = members;
    return layout;
}

QVariant valueFromColumnLayout(const StoredColumnLayout& layout) {
    QVariantMap members = layout.otherMembers;
    members.insert(nameMember, layout.columnLayoutName);
    for (const ColumnPlacement& placement : layout.placements) {
        const EventColumn& column = eventColumn(placement.identifier);
        if (!placement.title.isNull()) {
            members.insert(member(column, "ColumnName"), placement.title);
        }
        members.insert(member(column, "ColumnWidth"), qint64(placement.widthPoints));
        members.insert(member(column, "ColumnIndex"), qint64(placement.index));
        members.insert(member(column, "ColumnIsHidden"), placement.isHidden);
    }
    return members;
}

StoredColumnLayout capturedColumnLayout(ColumnTable& table, const QString& name) {
    StoredColumnLayout layout;
    layout.columnLayoutName = name;
    for (const EventColumn& column : eventColumns()) {
        const QString identifier = QString::fromLatin1(column.identifier);
        const int position = table.positionOf(identifier);
        const TableColumn& shown = table.columnAt(position);
        layout.placements.push_back({.identifier = identifier,
                                     .title = shown.headerTitle(),
                                     .widthPoints = static_cast<int>(shown.widthPoints()),
                                     .index = position,
                                     .isHidden = shown.isHidden()});
    }
    return layout;
}

} // namespace quillet
