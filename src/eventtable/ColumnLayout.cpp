#include "eventtable/ColumnLayout.h"

#include "eventtable/EventColumns.h"
#include "texts/Localized.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct DefaultPlacement {
    int widthPoints;
    int index;
    bool isHidden;
};

/// In the order of eventColumns().
constexpr std::array<DefaultPlacement, 16> defaultPlacements{{
    {80, 0, false},
    {70, 4, false},
    {240, 3, false},
    {128, 14, true},
    {123, 7, true},
    {119, 8, true},
    {105, 11, true},
    {105, 15, true},
    {86, 5, true},
    {80, 9, true},
    {80, 10, true},
    {86, 12, true},
    {89, 1, false},
    {86, 14, true},
    {70, 4, true},
    {70, 4, true},
}};

/// What a stored layout may ask for; wider columns can only come from a hand that slipped.
constexpr int widestPoints = 10'000;

} // namespace

std::vector<ColumnPlacement> defaultColumnPlacements() {
    std::vector<ColumnPlacement> placements;
    for (std::size_t number = 0; number < defaultPlacements.size(); ++number) {
        const EventColumn& column = eventColumns()[number];
        const DefaultPlacement& placement = defaultPlacements[number];
        placements.push_back({.identifier = QString::fromLatin1(column.identifier),
                              .title = localized(column.defaultTitle),
                              .widthPoints = placement.widthPoints,
                              .index = placement.index,
                              .isHidden = placement.isHidden});
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
