#pragma once

#include "export/ExportTxtViewController.h"
#include "platform/SerialQueue.h"
#include "window/exports/ExportPane.h"
#include "window/widgets/TextLines.h"

#include <QTimer>

#include <atomic>
#include <memory>

namespace quillet {

class ReportView;

/// The text report, live. A long one is built in the background; what was shown stays until then,
/// and a report that is overtaken by another change is given up.
class ReportPane : public ExportPane {
    Q_OBJECT

public:
    struct Building {
        /// Builds long reports, one after the other.
        SerialQueue& background;
        SerialQueue& main;
        /// For the background alone: formats and calendars serve one thread.
        const LocaleFormats& formats;
        const CalendarArithmetic& calendar;
    };

    ReportPane(ExportTxtViewController& report, Building building,
               std::function<void()> showOptions, Actions actions, QWidget* parent = nullptr);
    ~ReportPane() override;
    Q_DISABLE_COPY_MOVE(ReportPane)

    /// The report that stands here; nothing while another is awaited.
    [[nodiscard]] std::optional<QString> shownText() const;

private:
    ReportPane(ReportView* view, ExportTxtViewController& report, Building building,
               std::function<void()> showOptions, Actions actions, QWidget* parent);
    void refresh();
    void buildInBackground(TextReportContent content);
    void show(TextLines lines);

    ReportView* view_;
    ExportTxtViewController& report_;
    Building building_;
    bool isBuilding_ = false;
    /// Several changes at once are shown once.
    QTimer refreshing_;
    /// Set for a report that nobody waits for any more.
    std::shared_ptr<std::atomic<bool>> isGivenUp_;
};

} // namespace quillet
