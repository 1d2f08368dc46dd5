#pragma once

#include "platform/SettingsStore.h"
#include "window/main/InterfaceActions.h"

class QMenu;

namespace quillet {

/// Adds an entry for each column that switches its visibility; the three time columns, which share
/// one switch, are the given entries.
void fillColumnsMenu(QMenu& menu, SettingsStore& settings, TimeColumnActions& timeColumns);

} // namespace quillet
