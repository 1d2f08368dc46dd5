#pragma once

#include <QString>
#include <QWindow>

namespace quillet {

/// Shows the window, out of the task bar if it lies there, and makes it the active one, or the
/// modal dialog that is open over it. The token
/// is what the desktop gave with the request; without it some desktops only mark the window as
/// wanting attention. Ends the busy pointer that the desktop shows for the start.
void bringToFront(QWindow& window, const QString& token);

} // namespace quillet
