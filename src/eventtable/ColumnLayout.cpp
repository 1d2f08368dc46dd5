#include "eventtable/ColumnLayout.h"

#include "eventtable/EventColumns.h"

#include <algorithm>

namespace quillet {

namespace {

/// What a stored layout may ask for; wider columns can only come from a hand that slipped.
constexpr int widestPoints = 10'000;

} // namespace

std::vector<ColumnPlacement> defaultColumnPlacements() {
    std::vector<ColumnPlacement> placements;
    for (const EventColumn& column : eventColumns()) {
        placements.push_back({.identifier = QString::fromLatin1(column.identifier),
                              .title = column.title.firstRunValue().toString(),
                              .widthPoints = column.placement.widthPoints,
                              .index = column.placement.index,
                              .isHidden = column.placement.isHidden});
    }
    return placements;
}

void applyPlacements(const std::vector<ColumnPlacement>& placements, ColumnTable& table) {
    for (const ColumnPlacement& placement : placements) {
        const int position = table.positionOf(placement.identifier);
        if (position < 0) {
            continue;
        }
        if (placement.widthPoints > 0) {
            table.columnAt(position).setWidthPoints(std::min(placement.widthPoints, widestPoints));
        }
        if (placement.index >= 0 && placement.index < table.columnCount()) {
            table.moveColumn(position, placement.index);
        }
    }
}

} // namespace quillet
