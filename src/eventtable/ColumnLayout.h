#pragma once

#include "eventtable/ColumnTable.h"

#include <QString>

#include <vector>

namespace quillet {

/// Where one column stands in a layout.
struct ColumnPlacement {
    QString identifier;
    /// Null where a stored layout has none: the column keeps its own.
    QString title;
    /// 0 or less where a stored layout has none: the column keeps its own.
    int widthPoints = 0;
    /// 0 is the leftmost; hidden columns count.
    int index = 0;
    bool isHidden = false;
};

/// The layout that every user has: the sixteen columns in the order of eventColumns(), titles in
/// the user's language. Its indexes repeat and leave gaps; they are kept as they are, since the
/// placements are applied one after the other.
[[nodiscard]] std::vector<ColumnPlacement> defaultColumnPlacements();

/// Gives each column, one after the other, its width and moves it to where the column of its index
/// stands by then. An index outside the table leaves the column where it is.
void applyPlacements(const std::vector<ColumnPlacement>& placements, ColumnTable& table);

} // namespace quillet
