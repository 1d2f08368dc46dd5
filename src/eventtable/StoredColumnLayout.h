#pragma once

#include "eventtable/ColumnLayout.h"

#include <QVariant>
#include <QVariantMap>

namespace quillet {

/// A named snapshot of the event table's columns: an element of the stored array `columnLayouts`.
struct StoredColumnLayout {
    QString columnLayoutName;
    /// One for each column, in the order of eventColumns().
    std::vector<ColumnPlacement> placements;
    /// Members that this version does not know, written back as they came.
    QVariantMap otherMembers;
};

/// Members of a wrong type are read as the platform's typed getters do; where they are missing the
/// column keeps what it has, and is visible.
[[nodiscard]] StoredColumnLayout columnLayoutFromValue(const QVariant& value);
[[nodiscard]] QVariant valueFromColumnLayout(const StoredColumnLayout& layout);

/// The table as it stands, which must have all sixteen columns; widths are cut to whole points.
[[nodiscard]] StoredColumnLayout capturedColumnLayout(ColumnTable& table, const QString& name);

} // namespace quillet
