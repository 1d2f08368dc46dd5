#pragma once

#include <QList>

class QWidget;

namespace quillet {

enum class FocusStep { Next, Previous };

/// The control to which Tab goes from `current`: through the areas of a window one after the other,
/// and in each area along its rows as one reads them. The toolkit's own order, a chain tied up in
/// the order of construction, loses its ends where compound controls such as month pickers are
/// moved in it. Null where the current control is in none of the areas.
[[nodiscard]] QWidget* neighbourInFocusOrder(const QList<QWidget*>& areas, QWidget* current,
                                             FocusStep step);

} // namespace quillet
