#pragma once

#include "app/Core.h"
#include "window/calendars/CalendarAdding.h"
#include "window/calendars/CalendarListModel.h"
#include "window/calendars/GroupChooser.h"
#include "window/events/ColumnLayoutsPopoverController.h"
#include "window/events/ColumnsMenu.h"
#include "window/exports/ReportPane.h"
#include "window/exports/TXTSettingsSheet.h"
#include "window/main/MainMenus.h"
#include "window/main/WindowExports.h"
#include "window/main/WindowPanes.h"
#include "window/period/PeriodActions.h"
#include "window/preferences/PreferencesPanes.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QSplitter;
class QStackedWidget;
class QToolBar;
class QToolButton;

namespace quillet {

class Announcer;
class CalendarPane;
class EmptyState;
class EventTableView;
class PeriodBar;
class ResultsPane;
class SearchBox;

/// What the window can ask for around the calendars themselves.
struct CalendarActions {
    CalendarAdding::AddCalendar addCalendar;
    /// Asks for access again, whatever was answered before.
    std::function<void()> allowAccess;
    /// What could not be read, a line each.
    std::function<QStringList()> problems;
    CalendarListModel::ColorOf colorOf;
};

/// The main window: the calendars to the left, the events in the middle, the period to the right.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// What the window has besides the core.
    struct Parts {
        /// Becomes the window's.
        EventTableView& eventTable;
        ReportPane::Building reportBuilding;
        CalendarActions calendarActions;
        /// Whether the window may close, which ends the program; may ask the user.
        std::function<bool()> mayQuit;
    };

    /// Shows the core, which is awake.
    MainWindow(Core& core, Parts parts, QWidget* parent = nullptr);
    ~MainWindow() override;
    Q_DISABLE_COPY_MOVE(MainWindow)

    /// Sizes and positions as the last run left them, or the first ones.
    void restoreState(const QString& stateFile);
    void saveState(const QString& stateFile) const;
    /// Shows a message in the status area until the next one.
    void showMessage(const QString& message);
    /// Shows anew what could not be read.
    void refreshProblems();
    [[nodiscard]] ExportActions& exportActions() { return exports_.actions(); }

protected:
    /// Tab follows the eye.
    bool focusNextPrevChild(bool next) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makePanes();
    [[nodiscard]] QWidget* makeEventItemView();
    void makeColumnLayoutsButton();
    [[nodiscard]] QWidget* makeCentre();
    void makeToolBar();
    void makeSearch(QToolBar& bar);
    void makeMenus();
    /// Tab goes as the eye does: the toolbar, then the panes from the start to the end.
    void followState();
    /// Tells a screen reader the period and its totals, where they are others than those told last.
    void announceTotals();
    void showTableOrReason();
    void tickAllCalendars();

    Core& core_;
    Parts parts_;
    TimeColumnActions timeColumnActions_;
    CalendarPane* calendarPane_ = nullptr;
    GroupChooser* groupChooser_ = nullptr;
    PeriodBar* periodBar_ = nullptr;
    QStackedWidget* centreStack_ = nullptr;
    EmptyState* emptyState_ = nullptr;
    ResultsPane* resultsPane_;
    SearchBox* searchBox_ = nullptr;
    std::unique_ptr<WindowPanes> panes_;
    QSplitter* splitter_ = nullptr;
    QToolButton* columnLayoutsButton_ = nullptr;
    ColumnLayoutsPopoverController columnLayoutsPopover_;
    TXTSettingsSheet txtSettingsSheet_;
    Announcer* announcer_;
    PreferencesPanes preferences_;
    CalendarAdding calendarAdding_;
    PeriodActions periodActions_;
    WindowExports exports_;
    std::unique_ptr<MainMenus> menus_;
};

} // namespace quillet
