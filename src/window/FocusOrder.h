#pragma once

#include <QList>

class QWidget;

namespace quillet {

/// Lets Tab go through the areas of a window one after the other. Within an area the controls keep
/// their order. The areas must stand in one window.
void orderFocus(const QList<QWidget*>& areas);

} // namespace quillet
