#pragma once

#include <QIcon>
#include <QPalette>

namespace quillet {

enum class Symbol {
    Previous,
    Current,
    Next,
    Save,
    Locked,
    Unlocked,
    Text,
    Notes,
    Mail,
    Search,
    Edit,
    Add,
    Remove,
    Columns,
    Inspector,
};

/// A line drawing in a colour of the palette, sharp at every size; it follows light and dark, and
/// arrows follow the direction of reading.
[[nodiscard]] QIcon symbolIcon(Symbol symbol, QPalette::ColorRole role = QPalette::ButtonText);

} // namespace quillet
