#pragma once

#include "platform/SettingsStore.h"

#include <QAction>

class QMenu;

namespace quillet {

class EventItemViewController;

/// The entries that switch the time column, of which one is shown.
struct TimeColumnActions {
    QAction hours;
    QAction minutes;
    QAction duration;
};

/// Shows the one entry that the controller says, now and from now on.
void followTimeMenuItem(TimeColumnActions& timeColumns,
                        const EventItemViewController& eventItemView);

/// Adds an entry for each column that switches its visibility; the three time columns, which share
/// one switch, are the given entries.
void fillColumnsMenu(QMenu& menu, SettingsStore& settings, TimeColumnActions& timeColumns);

} // namespace quillet
