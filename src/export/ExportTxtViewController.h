#pragma once

#include "eventdata/CalendarRecord.h"
#include "eventdata/EventFields.h"
#include "eventtable/ColumnTable.h"
#include "export/TextReport.h"
#include "export/TextReportRefresh.h"
#include "platform/ExportProgress.h"
#include "platform/ListController.h"
#include "platform/SettingsStore.h"
#include "platform/StyledText.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace quillet {

/// The text report of the events that are shown, or of the selected ones where that tab is chosen:
/// in the columns of the event table as they stand on screen. Main thread only.
class ExportTxtViewController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        const ColumnTable& eventItemTableView;
        ListController<Event>& eventsArrayController;
        ListController<CalendarRecord>& calendarsArrayController;
        const EventFields& fields;
    };

    explicit ExportTxtViewController(const Collaborators& collaborators);

    /// See TextReportRefresh::awakeFromNib(). From now on the report follows the columns too.
    void awakeFromNib();
    /// Announces the report, unless its pane is closed or a preset or layout is being applied.
    void updateEventsAttributedString() { refresh_.updateEventsAttributedString(); }
    /// A column of the event table was moved or resized.
    void tableViewChanged() { refresh_.tableViewChanged(); }

    /// Everything that a report of now is made of. A report made of it stays the same whatever
    /// changes meanwhile.
    [[nodiscard]] TextReportContent content() const;

    /// The whole report, built anew at every call.
    [[nodiscard]] StyledText eventsAttributedString() const;
    /// The same for a long one; nothing when it was cancelled.
    [[nodiscard]] std::optional<StyledText>
    eventsAttributedString(const ExportProgress& progress) const;
    /// The pane that shows the report: what it shows, or nothing while it waits for a newer report.
    void setEventTextView(std::function<std::optional<QString>()> shownText) {
        eventTextView_ = std::move(shownText);
    }
    /// What is saved and mailed: the report exactly as its pane shows it, which does not follow
    /// every change; without a pane, the report of now. Nothing when it was cancelled.
    [[nodiscard]] std::optional<QString> shownText(const ExportProgress& progress) const;
    /// Lines that each end with a line feed; empty without events.
    [[nodiscard]] QString headerString() const;
    /// Titles, separator and events, each line ended by a line feed.
    [[nodiscard]] QString tableViewString() const;
    /// A separator line and the line of sums, which no line feed ends.
    [[nodiscard]] QString summaryRow() const;
    /// One cell of one line, wrapped or not as `isTXTWrapping` says; see reportCell().
    [[nodiscard]] QString makeCellWithString(const QString& text, qsizetype columnLength,
                                             std::size_t iteration) const;

    /// @name Figures over all shown or over the selected events
    /// Duration texts, "0h" for no events; day counts, 0 without a period or a selection.
    /// @{
    [[nodiscard]] QString totalDuration() const;
    [[nodiscard]] QString totalSelectedDuration() const;
    [[nodiscard]] QString minDuration() const;
    [[nodiscard]] QString minSelectedDuration() const;
    [[nodiscard]] QString maxDuration() const;
    [[nodiscard]] QString maxSelectedDuration() const;
    [[nodiscard]] QString avgDuration() const;
    [[nodiscard]] QString avgSelectedDuration() const;
    [[nodiscard]] int totalDays() const;
    [[nodiscard]] int totalSelectedDays() const;
    /// @}

Q_SIGNALS:
    void eventsAttributedStringChanged();

private:
    [[nodiscard]] TextReportContent content(ReportScope scope) const;
    [[nodiscard]] std::vector<ReportColumn> visibleColumns() const;

    Collaborators with_;
    TextReportRefresh refresh_;
    std::function<std::optional<QString>()> eventTextView_;
};

} // namespace quillet
