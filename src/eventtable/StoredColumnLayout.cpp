#include "eventtable/StoredColumnLayout.h"

#include "eventtable/EventColumns.h"
#include "platform/NamedRecordsController.h"

#include <algorithm>
#include <limits>

namespace quillet {

namespace {

QString member(const EventColumn& column, const char* suffix) {
    return QString::fromLatin1(column.stem) + QString::fromLatin1(suffix);
}

int boundedInteger(const QVariant& value) {
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(integerFromValue(value), lowest, highest));
}

/// A place outside the table, where the column stays, when it cannot be read.
int indexFromValue(const QVariant& value) {
    return isReadableMember(value) ? boundedInteger(value) : -1;
}

} // namespace

std::vector<ColumnPlacement> placementsFromMembers(const QVariantMap& members) {
    std::vector<ColumnPlacement> placements;
    for (const EventColumn& column : eventColumns()) {
        placements.push_back(
            {.identifier = QString::fromLatin1(column.identifier),
             .title = stringFromValue(members.value(member(column, "ColumnName"))),
             .widthPoints = boundedInteger(members.value(member(column, "ColumnWidth"))),
             .index = indexFromValue(members.value(member(column, "ColumnIndex"))),
             .isHidden = boolFromValue(members.value(member(column, "ColumnIsHidden")))});
    }
    return placements;
}

QVariantMap membersFromPlacements(const std::vector<ColumnPlacement>& placements) {
    QVariantMap members;
    for (const ColumnPlacement& placement : placements) {
        const EventColumn& column = eventColumn(placement.identifier);
        members.insert(member(column, "ColumnName"), presentText(placement.title));
        members.insert(member(column, "ColumnWidth"), qint64(placement.widthPoints));
        members.insert(member(column, "ColumnIndex"), qint64(placement.index));
        members.insert(member(column, "ColumnIsHidden"), placement.isHidden);
    }
    return members;
}

std::vector<ColumnPlacement> capturedPlacements(const ColumnTable& table) {
    std::vector<ColumnPlacement> placements;
    for (const EventColumn& column : eventColumns()) {
        const QString identifier = QString::fromLatin1(column.identifier);
        const int position = table.positionOf(identifier);
        const TableColumn& shown = table.columnAt(position);
        placements.push_back({.identifier = identifier,
                              .title = shown.headerTitle(),
                              .widthPoints = static_cast<int>(shown.widthPoints()),
                              .index = position,
                              .isHidden = shown.isHidden()});
    }
    return placements;
}

} // namespace quillet
