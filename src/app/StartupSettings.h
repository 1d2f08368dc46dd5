#pragma once

#include "platform/SettingsStore.h"

namespace quillet {

/// Writes the settings that exist from the first launch on, in the order of their table, each only
/// where it is absent.
void writeStartupSettings(SettingsStore& settings);

} // namespace quillet
