#pragma once

#include "backends/icsfolder/IcsFile.h"
#include "backends/icsfolder/RawEvent.h"

#include <vector>

namespace quillet {

/// Puts the events of one file together: each series with its exceptions, so that a moved or
/// cancelled occurrence counts once, where it now is.
void assembleEvents(std::vector<RawEvent> raw, const std::shared_ptr<const StoreCalendar>& calendar,
                    WorkBudget& budget, IcsFile& file);

} // namespace quillet
