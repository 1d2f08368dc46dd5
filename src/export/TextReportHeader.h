#pragma once

#include "export/TextReport.h"
#include "platform/Setting.h"

#include <span>

namespace quillet {

/// A line that the report can have above its table; that of money is up to two.
struct ReportHeaderLine {
    /// Whether the user wants it.
    const Setting<bool>& isWanted;
    /// What the preferences call it, and how they explain it where the name does not say it all;
    /// English.
    const char* label;
    const char* explanation;
    /// Ended by a line feed; empty where there is nothing to say.
    QString (*text)(const TextReportContent& content, const EventTotals& totals);
};

/// In the order in which they stand in the report.
[[nodiscard]] std::span<const ReportHeaderLine> reportHeaderLines();

/// The free text above the table, ended by two line feeds, and the lines that are wanted. Empty for
/// a report without events. The totals are those of the report's events.
[[nodiscard]] QString reportHeader(const TextReportContent& content, const EventTotals& totals);

} // namespace quillet
