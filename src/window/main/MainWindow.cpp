#include "window/main/MainWindow.h"

#include "period/PeriodName.h"
#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/calendars/CalendarPane.h"
#include "window/calendars/RatePane.h"
#include "window/events/EventTableView.h"
#include "window/events/ResultsPane.h"
#include "window/events/SearchBox.h"
#include "window/period/InspectorPane.h"
#include "window/period/PeriodBar.h"
#include "window/period/PeriodLabels.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/Announcer.h"
#include "window/widgets/EmptyState.h"
#include "window/widgets/FittingToolBar.h"
#include "window/widgets/FocusOrder.h"
#include "window/widgets/LetterWidth.h"
#include "window/widgets/LocalFile.h"
#include "window/widgets/PaneScroller.h"
#include "window/widgets/SymbolIcon.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace quillet {

MainWindow::MainWindow(Core& core, Parts parts, QWidget* parent)
    : QMainWindow(parent)
    , core_(core)
    , parts_(std::move(parts))
    , resultsPane_(new ResultsPane(core_.settings, this))
    , columnLayoutsPopover_(core_.settings, core_.columnLayouts)
    , txtSettingsSheet_(core_.txtSettings, *this)
    , announcer_(new Announcer(*this))
    , preferences_(core_.preferences,
                   {core_.settings, core_.formats,
                    [this] { core_.eventItemView.resetAllColumnTitles(); },
                    [this] { txtSettingsSheet_.controller().openTXTSettingsSheet(); }},
                   *this)
    , calendarAdding_(parts_.calendarActions.addCalendar, *this)
    , periodActions_(core_.dateInspector, *this)
    , exports_(core_,
               {parts_.eventTable, parts_.reportBuilding,
                [this] { core_.preferences.showWindowWithTextPreferencesView(); }},
               *this) {
    setWindowTitle(QStringLiteral("Quillet"));
    setAcceptDrops(true);
    parts_.eventTable.follow(core_.eventItemTableView);
    parts_.eventTable.follow(core_.openCalendarEvent);
    parts_.eventTable.follow(core_.eventItemView);
    followTimeMenuItem(timeColumnActions_, core_.eventItemView);
    resultsPane_->follow(core_.eventResults);
    makePanes();
    makeToolBar();
    makeMenus();
    followState();
    exports_.showIn(*panes_);
}

MainWindow::~MainWindow() = default;

void MainWindow::makePanes() {
    calendarPane_ = new CalendarPane(core_.calendars, parts_.calendarActions.colorOf, this);
    groupChooser_ = new GroupChooser(
        {core_.calendarGroups, core_.calendarGroupsChecklist, core_.calendarGroupsFilter},
        core_.settings, *this);
    calendarPane_->setHeader(*groupChooser_);
    auto* inspector = new InspectorPane(core_.dateInspector, core_.settings, core_.gregorian, this);
    auto* rate =
        new RatePane(core_.calendars, core_.eventItemView, core_.settings, core_.formats, this);
    WindowPanes::Contents contents = exports_.makePanes();
    contents.insert({{PaneContent::CalendarListView, calendarPane_},
                     {PaneContent::EventItemView, makeEventItemView()},
                     {PaneContent::DateInspectorView, new PaneScroller(*inspector, this)},
                     {PaneContent::EventRateView, rate}});
    panes_ = std::make_unique<WindowPanes>(std::move(contents), *this);
    splitter_ = new QSplitter(this);
    splitter_->setObjectName(QStringLiteral("panes"));
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(panes_->container(Pane::List));
    splitter_->addWidget(makeCentre());
    splitter_->addWidget(panes_->container(Pane::Inspector));
    splitter_->setStretchFactor(1, 1);
    const int unit = letterWidth(fontMetrics());
    // In fonts with Chinese characters the average is as wide as one of these.
    calendarPane_->setMinimumWidth(fontMetrics().horizontalAdvance(u'0') * 14);
    splitter_->setSizes({unit * 32, unit * 110, unit * 40});
    connect(&periodActions_.inspector(), &QAction::toggled, this,
            [this](bool isShown) { panes_->container(Pane::Inspector)->setVisible(isShown); });
    setCentralWidget(new PaneScroller(*splitter_, this));
}

QWidget* MainWindow::makeEventItemView() {
    emptyState_ = new EmptyState(this);
    centreStack_ = new QStackedWidget(this);
    centreStack_->addWidget(&parts_.eventTable);
    centreStack_->addWidget(emptyState_);
    return centreStack_;
}

void MainWindow::makeColumnLayoutsButton() {
    columnLayoutsButton_ = new QToolButton(this);
    columnLayoutsButton_->setText(localized("Layouts"));
    columnLayoutsButton_->setIcon(symbolIcon(Symbol::Columns));
    columnLayoutsButton_->setToolButtonStyle(Qt::ToolButtonIconOnly);
    columnLayoutsButton_->setAutoRaise(true);
    columnLayoutsButton_->setFocusPolicy(Qt::TabFocus);
    columnLayoutsButton_->setObjectName(settings::columnLayouts.name());
    columnLayoutsButton_->setToolTip(localized("Keeps arrangements of the columns under names"));
    connect(columnLayoutsButton_, &QToolButton::clicked, this,
            [this] { columnLayoutsPopover_.showColumnLayoutsPopover(*columnLayoutsButton_); });
}

QWidget* MainWindow::makeCentre() {
    periodBar_ = new PeriodBar(core_.dateInspector, core_.formats, periodActions_, this);
    makeColumnLayoutsButton();
    resultsPane_->addControl(*columnLayoutsButton_);
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(periodBar_);
    layout->addWidget(resultsPane_);
    layout->addWidget(&panes_->centreSplitter(), 1);
    return centre;
}

void MainWindow::makeToolBar() {
    auto* bar = new FittingToolBar(localized("Toolbar"), this);
    addToolBar(bar);
    bar->setObjectName(QStringLiteral("toolbar"));
    bar->setMovable(false);
    ExportActions& exports = exports_.actions();
    bar->addActions({&exports.text, &exports.notes});
    bar->addSeparator();
    bar->addActions({&exports.csv, &exports.tsv, &exports.mail});
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
    menus_ = std::make_unique<MainMenus>(
        core_,
        MainMenus::Parts{.eventTable = parts_.eventTable,
                         .timeColumnActions = timeColumnActions_,
                         .exports = exports_,
                         .periodActions = periodActions_,
                         .searchBox = *searchBox_,
                         .groupChooser = *groupChooser_,
                         .columnLayoutsPopover = columnLayoutsPopover_,
                         .columnLayoutsButton = *columnLayoutsButton_,
                         .txtSettingsSheet = txtSettingsSheet_,
                         .preferences = preferences_,
                         .announcer = *announcer_,
                         .calendarAdding = calendarAdding_,
                         .allowAccess = parts_.calendarActions.allowAccess,
                         .mayQuit = parts_.mayQuit},
        *this);
}

bool MainWindow::focusNextPrevChild(bool next) {
    QList<QWidget*> areas{findChild<QToolBar*>(), panes_->container(Pane::List), periodBar_,
                          resultsPane_, panes_->container(Pane::Item)};
    for (ExportPane* pane : findChildren<ExportPane*>()) {
        areas.append(pane);
    }
    areas << panes_->container(Pane::Rate) << panes_->container(Pane::Inspector);
    QWidget* const neighbour =
        neighbourInFocusOrder(areas, focusWidget(), next ? FocusStep::Next : FocusStep::Previous);
    if (neighbour == nullptr) {
        return QMainWindow::focusNextPrevChild(next);
    }
    neighbour->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    for (QWidget* around = neighbour->parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        if (auto* scroller = qobject_cast<PaneScroller*>(around)) {
            scroller->ensureWidgetVisible(neighbour);
        }
    }
    return true;
}

void MainWindow::followState() {
    const auto reason = [this] { showTableOrReason(); };
    connect(&core_.events, &ListControllerNotices::arrangedObjectsChanged, this, reason);
    connect(&core_.calendars, &ListControllerNotices::arrangedObjectsChanged, this, reason);
    for (const SettingKey* key :
         settingGroup(settings::isCalendarAccessGranted, settings::isProgressIndicatorOn)) {
        observeWhileAlive(*this, core_.settings, *key, reason);
    }
    observeWhileAlive(*this, core_.settings, settings::isProgressIndicatorOn, [this] {
        if (!settings::isProgressIndicatorOn.read(core_.settings)) {
            // A query may have found one, or shown that one is gone.
            refreshProblems();
            announceTotals();
        }
    });
    connect(resultsPane_, &ResultsPane::shown, this, &MainWindow::announceTotals);
    followReportingPeriod(core_.eventItemView, core_.dateInspector, core_.settings);
    describeWithPeriod(parts_.eventTable, core_.eventItemView);
    showTableOrReason();
}

void MainWindow::announceTotals() {
    // What a running fetch is about to replace is not said.
    if (!settings::isProgressIndicatorOn.read(core_.settings)) {
        auto& period = core_.dateInspector;
        announcer_->announce(QStringLiteral("%1: %2").arg(
            nameOfPeriod(period.quickDatePeriodIndex(), period.startDate(), period.endDate(),
                         core_.formats),
            resultsPane_->spokenTotals()));
    }
}

void MainWindow::showTableOrReason() {
    // While a fetch runs what was shown stays, so that nothing flickers.
    if (settings::isProgressIndicatorOn.read(core_.settings) && core_.events.arrangedCount() == 0) {
        return;
    }
    const auto& calendars = core_.calendars;
    bool isAnyTicked = false;
    for (std::size_t row = 0; row < calendars.arrangedCount(); ++row) {
        isAnyTicked = isAnyTicked || calendars.arranged(row).isSelected;
    }
    if (!settings::isCalendarAccessGranted.read(core_.settings)) {
        emptyState_->show(localized("Quillet may not read your calendars yet"),
                          localized("Your events appear here once you allow it."),
                          localized("Allow Calendar Access…"), parts_.calendarActions.allowAccess);
    } else if (calendars.arrangedCount() == 0 && !calendars.content()->empty()) {
        emptyState_->show(localized("No calendar in this group"),
                          localized("Tick the calendars that belong to it."),
                          localized("Edit Calendar Groups…"),
                          [this] { groupChooser_->openSheet(); });
    } else if (calendars.arrangedCount() == 0) {
        emptyState_->show(localized("No calendars"),
                          localized("Add a folder or a file of calendars, or drop one here."),
                          localized("Add Calendar Folder or File…"),
                          [this] { calendarAdding_.choose(); });
    } else if (!isAnyTicked) {
        emptyState_->show(localized("No calendar is ticked"),
                          localized("Tick the calendars whose time counts."),
                          localized("Tick All Calendars"), [this] { tickAllCalendars(); });
    } else if (core_.events.arrangedCount() == 0 && !core_.events.content()->empty()) {
        emptyState_->show(localized("Nothing found"),
                          localized("No event of this period matches the search."),
                          localized("Clear Search"), [this] { searchBox_->clear(); });
    } else if (core_.events.arrangedCount() == 0) {
        emptyState_->show(localized("No events in this period"),
                          localized("The ticked calendars have no events on these days."),
                          localized("Show the Current Period"),
                          [this] { periodActions_.current().trigger(); });
    } else {
        centreStack_->setCurrentWidget(&parts_.eventTable);
        return;
    }
    centreStack_->setCurrentWidget(emptyState_);
}

void MainWindow::tickAllCalendars() {
    auto& calendars = core_.calendars;
    if (calendars.selectedRows().empty()) {
        calendars.setSelectedRows({0});
    }
    // None is ticked, so that the click that turns all around ticks all.
    calendars.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
}

void MainWindow::refreshProblems() {
    calendarPane_->showProblems(parts_.calendarActions.problems());
    calendarPane_->refreshColors();
}

void MainWindow::showMessage(const QString& message) {
    if (message.isEmpty() && findChild<QStatusBar*>() == nullptr) {
        // An empty status bar would take a line of the window for nothing.
        return;
    }
    statusBar()->setVisible(!message.isEmpty());
    statusBar()->showMessage(message);
}

void MainWindow::restoreState(const QString& stateFile) {
    const QSettings state(stateFile, QSettings::IniFormat);
    if (!restoreGeometry(state.value(QStringLiteral("geometry")).toByteArray())) {
        const int unit = letterWidth(fontMetrics());
        // The title bar comes on top.
        const QSize room =
            screen()->availableSize() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
        resize(QSize(unit * 215, fontMetrics().height() * 48).boundedTo(room));
    }
    splitter_->restoreState(state.value(QStringLiteral("panes")).toByteArray());
    // The table and its money come first; the days to pick have what room is left.
    const bool isRoomForInspector = width() >= fontMetrics().height() * 80;
    periodActions_.inspector().setChecked(
        state.value(QStringLiteral("inspector"), isRoomForInspector).toBool());
    panes_->setExportRoom(state.value(QStringLiteral("exportPane")).toInt());
}

void MainWindow::saveState(const QString& stateFile) const {
    QSettings state(stateFile, QSettings::IniFormat);
    state.setValue(QStringLiteral("geometry"), saveGeometry());
    state.setValue(QStringLiteral("panes"), splitter_->saveState());
    state.setValue(QStringLiteral("inspector"), periodActions_.inspector().isChecked());
    state.setValue(QStringLiteral("exportPane"), panes_->exportRoom());
    state.setValue(QStringLiteral("columns"), parts_.eventTable.columnState());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(parts_.mayQuit());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    for (const QUrl& url : event->mimeData()->urls()) {
        if (const QString path = localPath(url); !path.isEmpty()) {
            calendarAdding_.add(path);
        }
    }
}

} // namespace quillet
