#pragma once

#include "backends/icsfolder/RawEvent.h"
#include "platform/Event.h"

namespace quillet {

using OccurrenceNamesPointer = QExplicitlySharedDataPointer<const OccurrenceNames>;

/// The occurrences of a series that starts then.
[[nodiscard]] OccurrenceNamesPointer namesInSeries(const RawTime& start);
/// One exception, as its RECURRENCE-ID is written.
[[nodiscard]] OccurrenceNamesPointer nameOfException(const QString& recurrenceText);

} // namespace quillet
