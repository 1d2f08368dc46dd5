#pragma once

#include "eventtable/EventColumns.h"
#include "platform/TableColumn.h"

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <array>
#include <vector>

namespace quillet {

/// What a layout remembers of one column.
struct ColumnLayoutEntry {
    QString columnName;
    /// Whole points.
    qint64 columnWidth = 0;
    /// The position in the table, 0 the leftmost, hidden columns counted.
    qint64 columnIndex = 0;
    bool columnIsHidden = false;

    friend bool operator==(const ColumnLayoutEntry&, const ColumnLayoutEntry&) = default;
};

/// A named snapshot of the event table's columns: an element of the stored array `columnLayouts`.
struct ColumnLayout {
    QString columnLayoutName;
    /// In the order of eventColumns().
    std::array<ColumnLayoutEntry, eventColumnCount> columns;
    /// Members that this version does not know, written back as they came.
    QVariantMap otherMembers;

    friend bool operator==(const ColumnLayout&, const ColumnLayout&) = default;
};

/// Members of a wrong type are read as the platform's typed getters do.
[[nodiscard]] ColumnLayout columnLayoutFromValue(const QVariant& value);
[[nodiscard]] QVariant valueFromColumnLayout(const ColumnLayout& layout);

/// The layout that every user has: "Default", in the user's language.
[[nodiscard]] ColumnLayout defaultColumnLayout();

/// The table as it stands; widths are cut to whole points.
[[nodiscard]] ColumnLayout capturedColumnLayout(ColumnTable& table, const QString& name);

/// Gives one column its width and moves it to its place in the layout. A place outside the table
/// is ignored.
void placeColumn(ColumnTable& table, const EventColumn& column, const ColumnLayoutEntry& entry);

struct ColumnPlacement {
    QString identifier;
    double widthPoints = 0.0;
    bool isHidden = false;
};

/// The columns from left to right as they stand at the very first start: where applying the
/// "Default" layout to the columns in declared order leaves them.
[[nodiscard]] std::vector<ColumnPlacement> defaultColumnOrder();

} // namespace quillet
