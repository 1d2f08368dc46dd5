#pragma once

#include "app/Core.h"
#include "window/events/ColumnsMenu.h"

#include <functional>

class QKeySequence;
class QMainWindow;
class QMenu;
class QWidget;

namespace quillet {

class Announcer;
class CalendarAdding;
class ColumnLayoutsPopoverController;
class EventTableView;
class GroupChooser;
class PeriodActions;
class PreferencesPanes;
class SearchBox;
class TXTSettingsSheet;
class WindowExports;

/// The menus of the main window: every action of the program, each with a letter of its own.
class MainMenus {
public:
    /// What the menus' actions work on, besides the core.
    struct Parts {
        EventTableView& eventTable;
        TimeColumnActions& timeColumnActions;
        WindowExports& exports;
        const PeriodActions& periodActions;
        SearchBox& searchBox;
        GroupChooser& groupChooser;
        ColumnLayoutsPopoverController& columnLayoutsPopover;
        QWidget& columnLayoutsButton;
        TXTSettingsSheet& txtSettingsSheet;
        PreferencesPanes& preferences;
        Announcer& announcer;
        const CalendarAdding& calendarAdding;
        /// Asks for access again, whatever was answered before.
        std::function<void()> allowAccess;
        /// Whether the program may end; may ask the user.
        std::function<bool()> mayQuit;
    };

    MainMenus(Core& core, Parts parts, QMainWindow& window);

private:
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeTimeEntries(QMenu& menu);
    void makeColumnsMenu(QMenu& menu);
    void makeColumnLayoutsMenu(QMenu& menu);
    void makePeriodMenu();
    void makeCalendarsMenu();
    void makeHelpMenu();
    static QAction* addAction(QMenu& menu, const QString& text, const char* name,
                              const QKeySequence& shortcut);
    QAction* addAction(QMenu& menu, const QString& text, const char* name,
                       const QKeySequence& shortcut, std::function<void()> action);

    Core& core_;
    Parts parts_;
    QMainWindow& window_;
};

} // namespace quillet
