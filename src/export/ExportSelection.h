#pragma once

#include "platform/SettingsStore.h"

namespace quillet {

/// Whether exports hold the selected events only: `totalsTabViewSelection` is 1.
[[nodiscard]] inline bool areOnlySelectedEventsExported(const SettingsStore& settings) {
    return integerForKey(settings, QStringLiteral("totalsTabViewSelection")) == 1;
}

} // namespace quillet
