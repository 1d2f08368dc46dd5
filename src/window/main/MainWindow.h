#pragma once

#include "app/Core.h"
#include "platform/Setting.h"
#include "window/calendars/CalendarListModel.h"
#include "window/calendars/GroupChooser.h"
#include "window/events/ColumnLayoutsPopoverController.h"
#include "window/events/ColumnsMenu.h"
#include "window/exports/ReportPane.h"
#include "window/exports/TXTSettingsSheet.h"
#include "window/main/WindowPanes.h"
#include "window/preferences/PreferencesPanes.h"

#include <QMainWindow>

#include <expected>
#include <functional>
#include <memory>

class QSplitter;
class QStackedWidget;
class QToolBar;
class QToolButton;

namespace quillet {

class CalendarPane;
class ElidedLabel;
class EmptyState;
class EventTableView;
class ResultsPane;
class SearchBox;

/// What the window can ask for around the calendars themselves.
struct CalendarActions {
    /// Adds a folder or file of calendars; the error is a sentence for the user.
    std::function<std::expected<void, QString>(const QString& path)> addCalendar;
    /// Asks for access again, whatever was answered before.
    std::function<void()> allowAccess;
    /// What could not be read, a line each.
    std::function<QStringList()> problems;
    CalendarListModel::ColorOf colorOf;
};

/// The toolbar's export buttons.
struct ExportActions {
    QAction text;
    QAction csv;
    QAction tsv;
    QAction mail;
    QAction notes;
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
    [[nodiscard]] ExportActions& exportActions() { return exportActions_; }

protected:
    /// Tab follows the eye.
    bool focusNextPrevChild(bool next) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makePanes();
    [[nodiscard]] QWidget* makeEventItemView();
    void makeColumnLayoutsButton();
    [[nodiscard]] QWidget* makeCentre();
    void makeToolBar();
    void makeExportActions();
    [[nodiscard]] WindowPanes::Contents exportPanes();
    void mail();
    void closeExportPane(void (AppViewsController::*turnOff)());
    void makeSearch(QToolBar& bar);
    void makeMenus();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeColumnsMenu(QMenu& menu);
    void makeColumnLayoutsMenu(QMenu& menu);
    void makePeriodMenu();
    void makeCalendarsMenu();
    void makeHelpMenu();
    QAction* addAction(QMenu& menu, const QString& text, const char* name,
                       const QKeySequence& shortcut, std::function<void()> action);
    void addExportPaneAction(QMenu& menu, const QString& text, const Setting<bool>& pane,
                             const QKeySequence& shortcut);
    void makeStepActions();
    /// Without access to the calendars the period stays as it is.
    void enableWithPeriod(QAction& action);
    /// Tab goes as the eye does: the toolbar, then the panes from the start to the end.
    void followState();
    void followExportPanes();
    void followExportActions();
    void showPeriodTitle();
    void showTableOrReason();
    void tickAllCalendars();
    void chooseCalendarToAdd();
    void addCalendar(const QString& path);
    void showPreferences();
    void showAbout();

    Core& core_;
    Parts parts_;
    ExportActions exportActions_;
    TimeColumnActions timeColumnActions_;
    CalendarPane* calendarPane_ = nullptr;
    GroupChooser* groupChooser_ = nullptr;
    ElidedLabel* periodTitle_ = nullptr;
    QStackedWidget* centreStack_ = nullptr;
    EmptyState* emptyState_ = nullptr;
    ResultsPane* resultsPane_;
    SearchBox* searchBox_ = nullptr;
    std::unique_ptr<WindowPanes> panes_;
    QSplitter* splitter_ = nullptr;
    QAction* previousAction_ = nullptr;
    QAction* currentAction_ = nullptr;
    QAction* nextAction_ = nullptr;
    QToolButton* columnLayoutsButton_ = nullptr;
    ColumnLayoutsPopoverController columnLayoutsPopover_;
    TXTSettingsSheet txtSettingsSheet_;
    PreferencesPanes preferences_;
};

} // namespace quillet
