#pragma once

#include "platform/Settings.h"

namespace quillet {

/// Whether exports hold the selected events only: `totalsTabViewSelection` is 1.
[[nodiscard]] inline bool areOnlySelectedEventsExported(const SettingsStore& settings) {
    return settings::totalsTabViewSelection.read(settings) == 1;
}

} // namespace quillet
