#pragma once

#include "eventdata/BillingSettings.h"
#include "eventdata/EventTotals.h"
#include "export/ExportedEvents.h"
#include "export/ReportCell.h"
#include "platform/CalendarArithmetic.h"
#include "platform/ExportProgress.h"
#include "platform/LocaleFormats.h"
#include "platform/StyledText.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillet {

/// One visible column of a report.
struct ReportColumn {
    QString identifier;
    /// Empty for a column without one.
    QString title;
    /// Characters of a cell, the blank behind it not counted; at least 2. See reportColumnLength().
    qsizetype length = 2;
};

struct ReportHeaderLine;

/// Which events a report is about.
enum class ReportScope { AllEvents, SelectedEvents };

/// All that a text report is made of. It owns what it says but the locale and the calendar.
struct TextReportContent {
    /// In display order.
    std::vector<ReportColumn> columns;
    ReportScope scope = ReportScope::AllEvents;
    ExportedEvents events;
    BillingSettings billing;
    CellWrapping wrapping = CellWrapping::Off;
    bool hasSummaryRow = false;
    /// Those that are wanted, in their order; see reportHeaderLines().
    std::vector<const ReportHeaderLine*> headerLines;
    /// The stored number: 1 hours, 2 minutes, 3 duration; any other shows no figures of time.
    qint64 timeType = 0;
    /// Free texts; an empty one is left out.
    QString headerText;
    QString footerText;
    /// Of the ticked calendars, in any order.
    QStringList calendarTitles;
    /// The title of the calendar column, shown or not.
    QString calendarColumnTitle;
    /// As stored.
    std::optional<Instant> periodStart;
    std::optional<Instant> periodEnd;
    /// As stored; absent where none is.
    std::optional<Decimal> hourlyRate;
    const LocaleFormats* formats = nullptr;
    /// Gregorian, in the zone of the formats.
    const CalendarArithmetic* calendar = nullptr;
};

/// The header, the table, the summary row and the footer as one text, with an empty line at both
/// ends. Nothing when the progress function cancelled it.
[[nodiscard]] std::optional<StyledText> textReport(const TextReportContent& content,
                                                   const ExportProgress& progress = {});

/// The figures of the report's events.
[[nodiscard]] EventTotals reportTotals(const TextReportContent& content);

/// The days that the report's events cover: those of the period, or, of selected events, those from
/// the first start to the last end. 0 without a period or without events.
[[nodiscard]] int reportedDays(const TextReportContent& content);

} // namespace quillet
