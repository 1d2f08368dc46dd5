#pragma once

#include "eventtable/ColumnLayout.h"

#include <QVariantMap>

namespace quillet {

/// The placements that an element of the stored array `columnLayouts` holds, one for each column in
/// the order of eventColumns(). Members of a wrong type are read as the platform's typed getters
/// do; where one is missing or cannot be read the column keeps what it has, and is visible.
[[nodiscard]] std::vector<ColumnPlacement> placementsFromMembers(const QVariantMap& members);
/// Complete members, but for the layout's name.
[[nodiscard]] QVariantMap membersFromPlacements(const std::vector<ColumnPlacement>& placements);

/// The table as it stands, which must have all sixteen columns; widths are cut to whole points.
[[nodiscard]] std::vector<ColumnPlacement> capturedPlacements(const ColumnTable& table);

} // namespace quillet
