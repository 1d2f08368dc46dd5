#include "export/TextReport.h"

#include "eventdata/EventAggregates.h"
#include "export/TextReportHeader.h"
#include "export/TextReportTable.h"

#include <algorithm>

namespace quillet {

EventTotals reportTotals(const TextReportContent& content) {
    EventTotals totals(content.billing);
    for (std::size_t position = 0; position < content.events.size(); ++position) {
        totals.add(content.events[position]);
    }
    return totals;
}

int reportedDays(const TextReportContent& content) {
    if (content.scope == ReportScope::AllEvents) {
        return content.periodStart && content.periodEnd
                   ? daysCovered(*content.periodStart, *content.periodEnd, *content.calendar)
                   : 0;
    }
    if (content.events.isEmpty()) {
        return 0;
    }
    Instant earliest = Instant::max();
    Instant latest = Instant::min();
    for (std::size_t position = 0; position < content.events.size(); ++position) {
        earliest = std::min(earliest, content.events[position].startDate);
        latest = std::max(latest, content.events[position].endDate);
    }
    return daysCovered(earliest, latest, *content.calendar);
}

std::optional<StyledText> textReport(const TextReportContent& content,
                                     const ExportProgress& progress) {
    using enum StyledText::Style;
    auto table = reportTable(content, progress);
    if (!table) {
        return std::nullopt;
    }
    const EventTotals totals = reportTotals(content);
    StyledText report;
    report.parts.push_back({QStringLiteral("\n"), Plain});
    if (QString header = reportHeader(content, totals); !header.isEmpty()) {
        report.parts.push_back({std::move(header), Monospaced});
        report.parts.push_back({QStringLiteral("\n"), Plain});
    }
    report.parts.push_back({*std::move(table), Monospaced});
    if (content.hasSummaryRow) {
        report.parts.push_back({reportSummaryRow(content, totals), Monospaced});
    }
    if (!content.footerText.isEmpty()) {
        report.parts.push_back({QStringLiteral("\n\n\n"), Plain});
        report.parts.push_back({content.footerText, Monospaced});
    }
    report.parts.push_back({QStringLiteral("\n"), Plain});
    report.hasTextColor = true;
    return report;
}

} // namespace quillet
