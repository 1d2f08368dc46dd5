#include "window/main/MainWindow.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/events/ColumnLayoutsMenu.h"
#include "window/events/ColumnsMenu.h"
#include "window/events/CopyCommand.h"
#include "window/events/EventTableView.h"
#include "window/events/SearchBox.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/FittingToolBar.h"
#include "window/widgets/PlainMessage.h"
#include "window/widgets/SymbolIcon.h"

#include <QActionGroup>
#include <QApplication>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>

#include <array>

namespace quillet {

QAction* MainWindow::addAction(QMenu& menu, const QString& text, const char* name,
                               const QKeySequence& shortcut, std::function<void()> action) {
    QAction* added = menu.addAction(text);
    added->setObjectName(QString::fromLatin1(name));
    added->setShortcut(shortcut);
    connect(added, &QAction::triggered, this, std::move(action));
    return added;
}

void MainWindow::makeStepActions() {
    struct Step {
        QAction*& action;
        const char* text;
        Symbol symbol;
        QKeySequence shortcut;
        PeriodStep step;
    };
    const std::array steps{
        Step{previousAction_, localizable("Previous"), Symbol::Previous,
             QKeySequence(Qt::ALT | Qt::Key_Left), PeriodStep::Previous},
        Step{currentAction_, localizable("Current"), Symbol::Current,
             QKeySequence(Qt::CTRL | Qt::Key_T), PeriodStep::Current},
        Step{nextAction_, localizable("Next"), Symbol::Next, QKeySequence(Qt::ALT | Qt::Key_Right),
             PeriodStep::Next},
    };
    for (const Step& step : steps) {
        step.action = new QAction(symbolIcon(step.symbol), localized(step.text), this);
        step.action->setObjectName(QStringLiteral("setQuickDates") +
                                   QString::fromLatin1(step.text));
        step.action->setShortcut(step.shortcut);
        enableWithPeriod(*step.action);
        connect(step.action, &QAction::triggered, this,
                [this, which = step.step] { core_.dateInspector.setQuickDates(which); });
    }
}

void MainWindow::enableWithPeriod(QAction& action) {
    const auto enable = [this, &action] {
        action.setEnabled(core_.dateInspector.isInterfaceEnabled());
    };
    connect(&core_.dateInspector, &DateInspectorController::isInterfaceEnabledChanged, &action,
            enable);
    enable();
}

void MainWindow::makeToolBar() {
    auto* bar = new FittingToolBar(localized("Toolbar"), this);
    addToolBar(bar);
    bar->setObjectName(QStringLiteral("toolbar"));
    bar->setMovable(false);
    bar->addActions({&exportActions_.text, &exportActions_.notes});
    bar->addSeparator();
    bar->addActions({&exportActions_.csv, &exportActions_.tsv, &exportActions_.mail});
    bar->addSeparator();
    bar->addActions({previousAction_, currentAction_, nextAction_});
    makeSearch(*bar);
    for (QToolButton* button :
         bar->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        button->setFocusPolicy(Qt::TabFocus);
    }
}

void MainWindow::makeSearch(QToolBar& bar) {
    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(space);
    searchBox_ = new SearchBox(this);
    bar.addWidget(searchBox_);
    searchBox_->follow(core_.search);
    connect(searchBox_, &SearchBox::left, this, [this] { parts_.eventTable.setFocus(); });
}

void MainWindow::makeMenus() {
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makePeriodMenu();
    makeCalendarsMenu();
    makeHelpMenu();
}

void MainWindow::makeFileMenu() {
    QMenu& menu = *menuBar()->addMenu(localized("&File"));
    addAction(menu, localized("&Save as CSV…"), "saveAsCSV", QKeySequence::Save,
              [this] { core_.exportCSV.saveAsCSV(); });
    addAction(menu, localized("Save as &TSV…"), "saveAsTSV", {},
              [this] { core_.exportTSV.saveAsTSV(); });
    addAction(menu, localized("Save Text &Report…"), "saveAsTxt", {},
              [this] { core_.exportTXT.saveAsTxt(); });
    addAction(menu, localized("Save Event &Notes…"), "saveNotesAsTxt", {},
              [this] { core_.exportNotes.saveAsTxt(); });
    menu.addSeparator();
    menu.addAction(&exportActions_.mail);
    menu.addSeparator();
    addAction(menu, localized("R&estart Quillet"), "relaunch", {},
              [this] { core_.appDelegate.relaunch(); });
    addAction(menu, localized("&Close Window"), "performClose", QKeySequence::Close,
              [this] { close(); });
    addAction(menu, localized("&Quit"), "terminate", QKeySequence::Quit, [this] { close(); });
}

void MainWindow::makeEditMenu() {
    QMenu& menu = *menuBar()->addMenu(localized("&Edit"));
    addAction(menu, localized("&Copy"), "copy", QKeySequence::Copy,
              [this] { copyWhatHasTheFocus(parts_.eventTable); });
    addAction(menu, localized("Select &All Events"), "selectAll", QKeySequence::SelectAll,
              [this] { parts_.eventTable.selectAll(); });
    menu.addAction(&parts_.eventTable.openInCalendarAction());
    menu.addSeparator();
    addAction(menu, localized("&Find…"), "startSearch", QKeySequence::Find,
              [this] { searchBox_->startSearch(); });
    QMenu& places = *menu.addMenu(localized("Find &In"));
    const auto fill = [this, &places] {
        places.clear();
        places.addActions(searchBox_->menu().actions());
    };
    // Each view has places of its own.
    connect(&menu, &QMenu::aboutToShow, this, fill);
    fill();
    menu.addSeparator();
    QAction* preferences =
        addAction(menu, localized("&Preferences…"), "showPreferences",
                  QKeySequence(Qt::CTRL | Qt::Key_Comma), [this] { showPreferences(); });
    preferences->setMenuRole(QAction::PreferencesRole);
}

void MainWindow::makeViewMenu() {
    QMenu& menu = *menuBar()->addMenu(localized("&View"));
    addExportPaneAction(menu, localized("&Text Report"), settings::isExportTXTViewOn,
                        QKeySequence(Qt::CTRL | Qt::Key_R));
    addExportPaneAction(menu, localized("Event &Notes"), settings::isNotesViewOn,
                        QKeySequence(Qt::CTRL | Qt::Key_E));
    menu.addSeparator();
    bindAction(*menu.addAction(localized("&Money")), core_.settings, settings::isDollarsOn);
    menu.addSeparator();
    auto* group = new QActionGroup(this);
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
        connect(action, &QAction::triggered, this,
                [this, number] { settings::timeTypeSelection.write(core_.settings, number); });
    }
    menu.addSeparator();
    makeColumnsMenu(menu);
    makeColumnLayoutsMenu(menu);
    addAction(menu, localized("Column &Preferences…"), "showWindowWithColumnsPreferencesView", {},
              [this] { core_.preferences.showWindowWithColumnsPreferencesView(); });
    addAction(menu, localized("Te&xt Report Preferences…"), "showWindowWithTextPreferencesView", {},
              [this] { core_.preferences.showWindowWithTextPreferencesView(); });
    addAction(menu, localized("Text Report P&resets…"), "openTXTSettingsSheet", {},
              [this] { txtSettingsSheet_.controller().openTXTSettingsSheet(); });
}

void MainWindow::makeColumnsMenu(QMenu& menu) {
    QMenu& columns = *menu.addMenu(localized("&Columns"));
    const auto fill = [this, &columns] {
        columns.clear();
        fillColumnsMenu(columns, core_.settings, timeColumnActions_);
        columns.addSeparator();
        addAction(columns, localized("&Reset All Titles"), "resetAllColumnTitles", {},
                  [this] { core_.eventItemView.resetAllColumnTitles(); });
    };
    // The users' own titles may change while the window is open.
    connect(&columns, &QMenu::aboutToShow, this, fill);
    fill();
}

void MainWindow::makeColumnLayoutsMenu(QMenu& menu) {
    auto* layouts = new ColumnLayoutsMenu(core_.columnLayouts, this);
    menu.addMenu(layouts);
    QAction* first = layouts->actions().front();
    layouts->insertAction(
        first, addAction(*layouts, localized("&Edit Layouts…"), "showColumnLayoutsPopover",
                         QKeySequence(Qt::CTRL | Qt::Key_L), [this] {
                             columnLayoutsPopover_.showColumnLayoutsPopover(*columnLayoutsButton_);
                         }));
    layouts->insertAction(
        first,
        addAction(*layouts, localized("&Save as New Layout"), "saveColumnLayout", {},
                  [this] { columnLayoutsPopover_.saveColumnLayout(*columnLayoutsButton_); }));
}

void MainWindow::makePeriodMenu() {
    QMenu& menu = *menuBar()->addMenu(localized("&Period"));
    menu.addActions({previousAction_, currentAction_, nextAction_});
    menu.addSeparator();
    constexpr std::array texts{localizable("&Day"), localizable("&Week"), localizable("&Month"),
                               localizable("&Year"), localizable("C&ustom")};
    for (int kind = 0; kind < static_cast<int>(texts.size()); ++kind) {
        QAction* action = addAction(
            menu, localized(texts[static_cast<std::size_t>(kind)]), "setQuickDatePeriod",
            QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + kind)),
            [this, kind] { core_.dateInspector.choosePeriodKind(static_cast<PeriodKind>(kind)); });
        enableWithPeriod(*action);
    }
}

void MainWindow::makeCalendarsMenu() {
    QMenu& menu = *menuBar()->addMenu(localized("&Calendars"));
    addAction(menu, localized("&Add Calendar Folder or File…"), "addCalendar", QKeySequence::Open,
              [this] { chooseCalendarToAdd(); });
    addAction(menu, localized("Allow Calendar A&ccess…"), "requestEventCalendarsAccess", {},
              parts_.calendarActions.allowAccess);
    addAction(menu, localized("Edit Calendar &Groups…"), "openCalendarGroupsSheet",
              QKeySequence(Qt::CTRL | Qt::Key_G), [this] { groupChooser_->openSheet(); });
    addAction(menu, localized("&Tick or Clear All"), "calendarTableViewClicked",
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A), [this] {
                  auto& calendars = core_.calendars;
                  if (calendars.arrangedCount() > 0 && calendars.selectedRows().empty()) {
                      calendars.setSelectedRows({0});
                  }
                  calendars.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
              });
}

void MainWindow::makeHelpMenu() {
    QMenu& menu = *menuBar()->addMenu(localized("&Help"));
    addAction(menu, localized("&Release Notes"), "openReleaseNotes", {},
              [this] { core_.appDelegate.openReleaseNotes(); });
    addAction(menu, localized("&Web Site"), "openWebsite", {},
              [this] { core_.appDelegate.openWebsite(); });
    addAction(menu, localized("Check for &Updates…"), "checkForUpdates", {},
              [this] { core_.appDelegate.checkForUpdates(); });
    menu.addSeparator();
    addAction(menu, localized("&About Quillet"), "showAbout", {}, [this] { showAbout(); });
}

void MainWindow::chooseCalendarToAdd() {
    QMessageBox box(this);
    box.setIcon(QMessageBox::Question);
    box.setText(localized("What would you like to add?"));
    box.setInformativeText(localized("A folder holds a calendar with one file an event; a file "
                                     "holds a whole calendar."));
    // Of two that accept, some desktops have one on each side of the button that cancels.
    QPushButton* folder = box.addButton(localized("&Folder…"), QMessageBox::ActionRole);
    QPushButton* file = box.addButton(localized("F&ile…"), QMessageBox::ActionRole);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(folder);
    box.exec();
    QString path;
    if (box.clickedButton() == folder) {
        path = QFileDialog::getExistingDirectory(this, localized("Add Calendar Folder"));
    } else if (box.clickedButton() == file) {
        path = QFileDialog::getOpenFileName(this, localized("Add Calendar File"), {},
                                            localized("Calendars (*.ics)"));
    }
    if (!path.isEmpty()) {
        addCalendar(path);
    }
}

void MainWindow::addCalendar(const QString& path) {
    if (const auto result = parts_.calendarActions.addCalendar(path); !result) {
        QMessageBox box(QMessageBox::Warning, {}, localized("The calendar could not be added"),
                        QMessageBox::Ok, this);
        box.setInformativeText(result.error());
        showAsPlainText(box);
        box.exec();
    }
}

void MainWindow::showPreferences() {
    preferences_.showWindow();
}

void MainWindow::showAbout() {
    QMessageBox::about(this, localized("About Quillet"),
                       localized("Quillet %1\n\nThe hours in your calendars, ready to bill.")
                           .arg(QCoreApplication::applicationVersion()));
}

} // namespace quillet
