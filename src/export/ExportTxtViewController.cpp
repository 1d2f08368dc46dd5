#include "export/ExportTxtViewController.h"

#include "eventdata/Duration.h"
#include "eventtable/EventColumns.h"
#include "export/TextReportHeader.h"
#include "export/TextReportTable.h"
#include "platform/Settings.h"

#include <algorithm>

namespace quillet {

namespace {

QString duration(const std::optional<Decimal>& minutes) {
    return makeDurationFromMinutes(minutes.value_or(Decimal()).toInteger());
}

} // namespace

ExportTxtViewController::ExportTxtViewController(const Collaborators& collaborators)
    : with_(collaborators)
    , refresh_(collaborators.settings, collaborators.eventsArrayController) {
    connect(&refresh_, &TextReportRefresh::eventsAttributedStringChanged, this,
            &ExportTxtViewController::eventsAttributedStringChanged);
}

void ExportTxtViewController::awakeFromNib() {
    refresh_.awakeFromNib();
    const ColumnTable& table = with_.eventItemTableView;
    connect(&table, &ColumnTable::columnMoved, this, &ExportTxtViewController::tableViewChanged);
    connect(&table, &ColumnTable::columnResized, this, &ExportTxtViewController::tableViewChanged);
}

std::vector<ReportColumn> ExportTxtViewController::visibleColumns() const {
    std::vector<ReportColumn> columns;
    for (int position = 0; position < with_.eventItemTableView.columnCount(); ++position) {
        const TableColumn& column = with_.eventItemTableView.columnAt(position);
        if (!column.isHidden()) {
            const EventColumn* const known = column.known();
            columns.push_back(
                {.identifier = column.identifier(),
                 .title = known == nullptr ? QString() : known->title.read(with_.settings),
                 .length = reportColumnLength(column.widthPoints())});
        }
    }
    return columns;
}

TextReportContent ExportTxtViewController::content(ReportScope scope) const {
    const SettingsStore& settings = with_.settings;
    const auto& list = with_.eventsArrayController;
    TextReportContent content;
    content.columns = visibleColumns();
    content.scope = scope;
    content.events = scope == ReportScope::SelectedEvents ? ExportedEvents::selected(list)
                                                          : ExportedEvents::arranged(list);
    content.billing = with_.fields.billing();
    content.wrapping =
        settings::isTXTWrapping.read(settings) ? CellWrapping::On : CellWrapping::Off;
    content.hasSummaryRow = settings::isTXTSummaryRow.read(settings);
    for (const ReportHeaderLine& line : reportHeaderLines()) {
        if (line.isWanted.read(settings)) {
            content.headerLines.push_back(&line);
        }
    }
    content.timeType = settings::timeTypeSelection.read(settings);
    content.headerText = settings::txtHeader.read(settings);
    content.footerText = settings::txtFooter.read(settings);
    const auto& calendars = with_.calendarsArrayController;
    for (std::size_t row = 0; row < calendars.arrangedCount(); ++row) {
        if (calendars.arranged(row).isSelected) {
            content.calendarTitles << calendars.arranged(row).title;
        }
    }
    content.calendarColumnTitle = settings::calendarColumnTitle.read(settings);
    content.periodStart = settings::filterStartDate.read(settings);
    content.periodEnd = settings::filterEndDate.read(settings);
    if (settings::hourlyRate.isStored(settings)) {
        content.hourlyRate = settings::hourlyRate.read(settings);
    }
    content.formats = &with_.fields.formats();
    content.calendar = &with_.fields.gregorian();
    return content;
}

TextReportContent ExportTxtViewController::content() const {
    return content(areOnlySelectedEventsExported(with_.settings) ? ReportScope::SelectedEvents
                                                                 : ReportScope::AllEvents);
}

StyledText ExportTxtViewController::eventsAttributedString() const {
    return textReport(content()).value_or(StyledText());
}

std::optional<StyledText>
ExportTxtViewController::eventsAttributedString(const ExportProgress& progress) const {
    return textReport(content(), progress);
}

std::optional<QString> ExportTxtViewController::shownText(const ExportProgress& progress) const {
    if (eventTextView_ && settings::isExportTXTViewOn.read(with_.settings)) {
        if (auto shown = eventTextView_()) {
            return shown;
        }
    }
    return eventsAttributedString(progress).transform(&StyledText::text);
}

QString ExportTxtViewController::headerString() const {
    const TextReportContent report = content();
    return reportHeader(report, reportTotals(report));
}

QString ExportTxtViewController::tableViewString() const {
    return reportTable(content()).value_or(QString());
}

QString ExportTxtViewController::summaryRow() const {
    const TextReportContent report = content();
    return reportSummaryRow(report, reportTotals(report));
}

QString ExportTxtViewController::makeCellWithString(const QString& text, qsizetype columnLength,
                                                    std::size_t iteration) const {
    return reportCell(text, columnLength, iteration,
                      settings::isTXTWrapping.read(with_.settings) ? CellWrapping::On
                                                                   : CellWrapping::Off);
}

QString ExportTxtViewController::totalDuration() const {
    return duration(reportTotals(content(ReportScope::AllEvents)).sumMinutes());
}

QString ExportTxtViewController::totalSelectedDuration() const {
    return duration(reportTotals(content(ReportScope::SelectedEvents)).sumMinutes());
}

QString ExportTxtViewController::minDuration() const {
    return duration(reportTotals(content(ReportScope::AllEvents)).minMinutes());
}

QString ExportTxtViewController::minSelectedDuration() const {
    return duration(reportTotals(content(ReportScope::SelectedEvents)).minMinutes());
}

QString ExportTxtViewController::maxDuration() const {
    return duration(reportTotals(content(ReportScope::AllEvents)).maxMinutes());
}

QString ExportTxtViewController::maxSelectedDuration() const {
    return duration(reportTotals(content(ReportScope::SelectedEvents)).maxMinutes());
}

QString ExportTxtViewController::avgDuration() const {
    return duration(reportTotals(content(ReportScope::AllEvents)).avgMinutes());
}

QString ExportTxtViewController::avgSelectedDuration() const {
    return duration(reportTotals(content(ReportScope::SelectedEvents)).avgMinutes());
}

int ExportTxtViewController::totalDays() const {
    return reportedDays(content(ReportScope::AllEvents));
}

int ExportTxtViewController::totalSelectedDays() const {
    return reportedDays(content(ReportScope::SelectedEvents));
}

} // namespace quillet
