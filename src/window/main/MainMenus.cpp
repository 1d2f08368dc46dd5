#include "window/main/MainMenus.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/calendars/CalendarAdding.h"
#include "window/calendars/GroupChooser.h"
#include "window/events/ColumnLayoutsMenu.h"
#include "window/events/ColumnLayoutsPopoverController.h"
#include "window/events/CopyCommand.h"
#include "window/events/EventTableView.h"
#include "window/events/SearchBox.h"
#include "window/exports/TXTSettingsSheet.h"
#include "window/main/WindowExports.h"
#include "window/period/PeriodActions.h"
#include "window/preferences/PreferencesPanes.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/Announcer.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>

#include <array>

namespace quillet {

MainMenus::MainMenus(Core& core, Parts parts, QMainWindow& window)
    : core_(core)
    , parts_(std::move(parts))
    , window_(window) {
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makePeriodMenu();
    makeCalendarsMenu();
    makeHelpMenu();
}

QAction* MainMenus::addAction(QMenu& menu, const QString& text, const char* name,
                              const QKeySequence& shortcut) {
    QAction* added = menu.addAction(text);
    added->setObjectName(QString::fromLatin1(name));
    added->setShortcut(shortcut);
    return added;
}

QAction* MainMenus::addAction(QMenu& menu, const QString& text, const char* name,
                              const QKeySequence& shortcut, std::function<void()> action) {
    QAction* added = addAction(menu, text, name, shortcut);
    QObject::connect(added, &QAction::triggered, &window_, std::move(action));
    return added;
}

void MainMenus::makeFileMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(localized("&File"));
    addAction(menu, localized("&Save as CSV…"), "saveAsCSV", QKeySequence::Save,
              [this] { core_.exportCSV.saveAsCSV(); });
    addAction(menu, localized("Save as &TSV…"), "saveAsTSV", {},
              [this] { core_.exportTSV.saveAsTSV(); });
    addAction(menu, localized("Save Text &Report…"), "saveAsTxt", {},
              [this] { core_.exportTXT.saveAsTxt(); });
    addAction(menu, localized("Save Event &Notes…"), "saveNotesAsTxt", {},
              [this] { core_.exportNotes.saveAsTxt(); });
    menu.addSeparator();
    menu.addAction(&parts_.exports.actions().mail);
    menu.addSeparator();
    addAction(menu, localized("R&estart Quillet"), "relaunch", {}, [this] {
        // Before the new copy is there to wait for the end of this one.
        if (parts_.mayQuit()) {
            core_.appDelegate.relaunch();
        }
    });
    addAction(menu, localized("&Close Window"), "performClose", QKeySequence::Close,
              [this] { window_.close(); });
    addAction(menu, localized("&Quit"), "terminate", QKeySequence::Quit,
              [this] { window_.close(); });
}

void MainMenus::makeEditMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(localized("&Edit"));
    addAction(menu, localized("&Copy"), "copy", QKeySequence::Copy,
              [this] { copyWhatHasTheFocus(parts_.eventTable); });
    addAction(menu, localized("Select &All Events"), "selectAll", QKeySequence::SelectAll,
              [this] { parts_.eventTable.selectAll(); });
    menu.addAction(&parts_.eventTable.openInCalendarAction());
    menu.addSeparator();
    addAction(menu, localized("&Find…"), "startSearch", QKeySequence::Find,
              [this] { parts_.searchBox.startSearch(); });
    QMenu& places = *menu.addMenu(localized("Find &In"));
    const auto fill = [this, &places] {
        places.clear();
        places.addActions(parts_.searchBox.menu().actions());
    };
    // Each view has places of its own.
    QObject::connect(&menu, &QMenu::aboutToShow, &window_, fill);
    fill();
    menu.addSeparator();
    QAction* preferences = addAction(menu, localized("&Preferences…"), "showPreferences",
                                     QKeySequence(Qt::CTRL | Qt::Key_Comma),
                                     [this] { parts_.preferences.showWindow(); });
    preferences->setMenuRole(QAction::PreferencesRole);
}

void MainMenus::makeViewMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(localized("&View"));
    parts_.exports.bindReportAction(*addAction(menu, localized("&Text Report"),
                                               "displayTxtExportView",
                                               QKeySequence(Qt::CTRL | Qt::Key_R)));
    parts_.exports.bindNotesAction(*addAction(menu, localized("Event &Notes"),
                                              "displayNotesExportView",
                                              QKeySequence(Qt::CTRL | Qt::Key_E)));
    menu.addSeparator();
    bindAction(*menu.addAction(localized("&Money")), core_.settings, settings::isDollarsOn);
    menu.addSeparator();
    makeTimeEntries(menu);
    menu.addSeparator();
    menu.addAction(&parts_.periodActions.inspector());
    addAction(menu, localized("Say Totals A&gain"), "sayTotals",
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T),
              [this] { parts_.announcer.repeat(); });
    menu.addSeparator();
    makeColumnsMenu(menu);
    makeColumnLayoutsMenu(menu);
    addAction(menu, localized("Column &Preferences…"), "showWindowWithColumnsPreferencesView", {},
              [this] { core_.preferences.showWindowWithColumnsPreferencesView(); });
    addAction(menu, localized("Te&xt Report Preferences…"), "showWindowWithTextPreferencesView", {},
              [this] { core_.preferences.showWindowWithTextPreferencesView(); });
    addAction(menu, localized("Text Report P&resets…"), "openTXTSettingsSheet", {},
              [this] { parts_.txtSettingsSheet.controller().openTXTSettingsSheet(); });
}

void MainMenus::makeTimeEntries(QMenu& menu) {
    auto* group = new QActionGroup(&window_);
    constexpr std::array texts{localizable("Time as &Hours"), localizable("Time as M&inutes"),
                               localizable("Time as &Duration")};
    for (qint64 number = 1; number <= static_cast<qint64>(texts.size()); ++number) {
        QAction* action = menu.addAction(localized(texts[static_cast<std::size_t>(number - 1)]));
        action->setCheckable(true);
        action->setActionGroup(group);
        const auto refresh = [this, action, number] {
            action->setChecked(settings::timeTypeSelection.read(core_.settings) == number);
        };
        refresh();
        observeWhileAlive(*action, core_.settings, settings::timeTypeSelection, refresh);
        QObject::connect(action, &QAction::triggered, &window_, [this, number] {
            settings::timeTypeSelection.write(core_.settings, number);
        });
    }
}

void MainMenus::makeColumnsMenu(QMenu& menu) {
    QMenu& columns = *menu.addMenu(localized("&Columns"));
    const auto fill = [this, &columns] {
        columns.clear();
        fillColumnsMenu(columns, core_.settings, parts_.timeColumnActions);
        columns.addSeparator();
        addAction(columns, localized("&Reset All Titles"), "resetAllColumnTitles", {},
                  [this] { core_.eventItemView.resetAllColumnTitles(); });
    };
    // The users' own titles may change while the window is open.
    QObject::connect(&columns, &QMenu::aboutToShow, &window_, fill);
    fill();
}

void MainMenus::makeColumnLayoutsMenu(QMenu& menu) {
    auto* layouts = new ColumnLayoutsMenu(core_.columnLayouts, &window_);
    menu.addMenu(layouts);
    QAction* first = layouts->actions().front();
    layouts->insertAction(first, addAction(*layouts, localized("&Edit Layouts…"),
                                           "showColumnLayoutsPopover",
                                           QKeySequence(Qt::CTRL | Qt::Key_L), [this] {
                                               parts_.columnLayoutsPopover.showColumnLayoutsPopover(
                                                   parts_.columnLayoutsButton);
                                           }));
    layouts->insertAction(
        first,
        addAction(*layouts, localized("&Save as New Layout"), "saveColumnLayout", {}, [this] {
            parts_.columnLayoutsPopover.saveColumnLayout(parts_.columnLayoutsButton);
        }));
}

void MainMenus::makePeriodMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(localized("&Period"));
    const PeriodActions& actions = parts_.periodActions;
    menu.addActions({&actions.previous(), &actions.current(), &actions.next()});
    menu.addSeparator();
    constexpr std::array texts{localizable("&Day"), localizable("&Week"), localizable("&Month"),
                               localizable("&Year"), localizable("C&ustom")};
    for (int kind = 0; kind < static_cast<int>(texts.size()); ++kind) {
        QAction* action = addAction(
            menu, localized(texts[static_cast<std::size_t>(kind)]), "setQuickDatePeriod",
            QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + kind)),
            [this, kind] { core_.dateInspector.choosePeriodKind(static_cast<PeriodKind>(kind)); });
        actions.enableWithPeriod(*action);
    }
}

void MainMenus::makeCalendarsMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(localized("&Calendars"));
    addAction(menu, localized("&Add Calendar Folder or File…"), "addCalendar", QKeySequence::Open,
              [this] { parts_.calendarAdding.choose(); });
    addAction(menu, localized("Allow Calendar A&ccess…"), "requestEventCalendarsAccess", {},
              parts_.allowAccess);
    addAction(menu, localized("Edit Calendar &Groups…"), "openCalendarGroupsSheet",
              QKeySequence(Qt::CTRL | Qt::Key_G), [this] { parts_.groupChooser.openSheet(); });
    addAction(menu, localized("&Tick or Clear All"), "calendarTableViewClicked",
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A), [this] {
                  auto& calendars = core_.calendars;
                  if (calendars.arrangedCount() > 0 && calendars.selectedRows().empty()) {
                      calendars.setSelectedRows({0});
                  }
                  calendars.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
              });
}

void MainMenus::makeHelpMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(localized("&Help"));
    addAction(menu, localized("&Release Notes"), "openReleaseNotes", {},
              [this] { core_.appDelegate.openReleaseNotes(); });
    addAction(menu, localized("&Web Site"), "openWebsite", {},
              [this] { core_.appDelegate.openWebsite(); });
    addAction(menu, localized("Check for &Updates…"), "checkForUpdates", {},
              [this] { core_.appDelegate.checkForUpdates(); });
    menu.addSeparator();
    const auto showAbout = [this] {
        QMessageBox::about(&window_, localized("About Quillet"),
                           localized("Quillet %1\n\nThe hours in your calendars, ready to bill.")
                               .arg(QCoreApplication::applicationVersion()));
    };
    // Queued, so that an assistive program that asks for it has its answer before the dialog.
    QObject::connect(addAction(menu, localized("&About Quillet"), "showAbout", {}),
                     &QAction::triggered, &window_, showAbout, Qt::QueuedConnection);
}

} // namespace quillet
