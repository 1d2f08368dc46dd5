#pragma once

#include "app/Core.h"
#include "platform/Setting.h"
#include "window/exports/ReportPane.h"
#include "window/main/WindowPanes.h"

#include <QAction>

#include <functional>

namespace quillet {

class EventTableView;

/// The toolbar's export buttons.
struct ExportActions {
    QAction text;
    QAction csv;
    QAction tsv;
    QAction mail;
    QAction notes;
};

/// The exports as the window offers them: buttons of the toolbar, and panes that come and go beside
/// the table.
class WindowExports {
public:
    struct Parts {
        EventTableView& eventTable;
        ReportPane::Building reportBuilding;
        std::function<void()> showReportPreferences;
    };

    WindowExports(Core& core, Parts parts, QWidget& window);

    [[nodiscard]] ExportActions& actions() { return actions_; }
    /// The views of the export pane; they become the window's.
    [[nodiscard]] WindowPanes::Contents makePanes();
    /// Shows and hides the panes from now on.
    void showIn(WindowPanes& panes);
    /// An entry of a menu that opens and closes the pane of the text report.
    void bindReportAction(QAction& action);
    /// The same for the notes.
    void bindNotesAction(QAction& action);

private:
    void makeActions();
    void bindPaneAction(QAction& action, const Setting<bool>& pane, const Setting<bool>& other,
                        const std::function<void()>& open, const std::function<void()>& close);
    void close(void (AppViewsController::*turnOff)());
    void closeReport() { close(&AppViewsController::turnTxtExportViewOff); }
    void closeNotes() { close(&AppViewsController::turnNotesExportViewOff); }
    void enableActions();
    void mail();

    Core& core_;
    Parts parts_;
    QWidget& window_;
    ExportActions actions_;
};

} // namespace quillet
