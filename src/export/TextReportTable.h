#pragma once

#include "export/TextReport.h"

namespace quillet {

/// The line of titles, a line of dashes, and the lines of each event, all ended by a line feed.
/// Every column takes one character more than its length on every line. An event goes on until none
/// of its wrapped cells has text left, at least for one line. A column of an unknown identifier
/// stands in the first two lines only. Nothing when the progress function cancelled it.
[[nodiscard]] std::optional<QString> reportTable(const TextReportContent& content,
                                                 const ExportProgress& progress = {});

/// A line of dashes, and below it the sums under the columns that have one; no line feed at the
/// end. The totals are those of the report's events.
[[nodiscard]] QString reportSummaryRow(const TextReportContent& content, const EventTotals& totals);

} // namespace quillet
