#pragma once

#include "platform/Instant.h"
#include "platform/LocaleFormats.h"

namespace quillet {

/// What people call a period, each part said once: "Friday, March 1, 2024", "Mar 4 – 10, 2024",
/// "March 2024", "2024". The kind is PeriodKind's number; of any other kind, and of a month or year
/// whose bounds are not its own, the span of days. Both bounds lie within the period.
[[nodiscard]] QString nameOfPeriod(qint64 kind, Instant start, Instant end,
                                   const LocaleFormats& formats);

} // namespace quillet
