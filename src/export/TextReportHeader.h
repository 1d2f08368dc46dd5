#pragma once

#include "export/TextReport.h"

namespace quillet {

/// The lines above the table that are switched on, each ended by a line feed, the free text by two.
/// Empty for a report without events. The totals are those of the report's events.
[[nodiscard]] QString reportHeader(const TextReportContent& content, const EventTotals& totals);

} // namespace quillet
