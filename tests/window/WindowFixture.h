#pragma once

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuCollator.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventdata/MissedChanges.h"
#include "eventtable/ColumnLayout.h"
#include "eventtable/EventItemTableView.h"
#include "eventtable/EventOrder.h"
#include "results/OpenCalendarEvent.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"
#include "window/events/EventTableModel.h"
#include "window/events/EventTableView.h"
#include "window/events/ResultsPane.h"
#include "window/main/InterfaceActions.h"
#include "window/main/MainWindow.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace quillet::test {

/// The real window and controllers over a store, a clock and queues that the test holds.
class WindowFixture : public testing::Test {
protected:
    WindowFixture() {
        store.storedCalendars = {calendar("w", "Work", "#3584e4"),
                                 calendar("h", "Home", "#e66100")};
        for (const char* key : {"isCalendarAccessGranted", "isDollarsOn", "isSingleRate"}) {
            settings.setObject(key, true);
        }
        settings.setObject("hourlyRate", 90);
        settings.setObject("timeTypeSelection", 1);
        settings.setObject("quickDatePeriod", 2);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        store.storedEvents = {event("w", "Planning", 4, 9, 11), event("h", "Dentist", 5, 8, 9),
                              event("w", "Workshop", 11, 9, 17)};
    }
    ~WindowFixture() override {
        // The window owns them once it is there.
        if (window == nullptr) {
            delete table;
            delete resultsPane;
        }
        window.reset();
    }

    static std::shared_ptr<const StoreCalendar>
    calendar(const QString& identifier, const QString& title, const QString& color) {
        return std::make_shared<const StoreCalendar>(StoreCalendar{identifier, title, color});
    }
    Event event(const QString& calendarIdentifier, const QString& title, unsigned day, int from,
                int to) const {
        EventDetails details;
        details.calendar = *std::ranges::find(store.storedCalendars, calendarIdentifier,
                                              &StoreCalendar::calendarIdentifier);
        details.title = title;
        details.eventIdentifier = title;
        return {utc(2024, 3, day, from), utc(2024, 3, day, to), Instant(),
                std::make_shared<const EventDetails>(std::move(details))};
    }

    void open() {
        calendars.awakeFromNib();
        groups.awakeFromNib();
        checklist.awakeFromNib();
        groupsFilter.awakeFromNib();
        inspector.awakeFromNib();
        applyPlacements(defaultColumnPlacements(), *table);
        table->follow(copying);
        table->follow(opening);
        opening.awakeFromNib();
        results.awakeFromNib();
        resultsPane->follow(results);
        columnLayouts.awakeFromNib();
        notes.awakeFromNib();
        txtSettings.awakeFromNib();
        report.awakeFromNib();
        itemView.awakeFromNib();
        missedChanges.awakeFromNib();
        eventsController.awakeFromNib();
        window = std::make_unique<MainWindow>(MainWindow::Collaborators{
            settings,
            formats,
            gregorian,
            events,
            calendars,
            WindowGroups{groups, checklist, groupsFilter},
            inspector,
            itemView,
            WindowExports{exportCSV,
                          exportTSV,
                          exportTXT,
                          exportNotes,
                          report,
                          {reportQueue, main, formats, gregorian},
                          notes},
            {columnLayouts, txtSettings},
            delegate,
            *table,
            *resultsPane,
            exportItems,
            menuTimeColumns,
            CalendarActions{
                .addCalendar = [](const QString&) { return std::expected<void, QString>(); },
                .allowAccess = [] {},
                .problems = [this] { return problems; },
                .colorOf = [](const QString&) { return QColor(Qt::red); }}});
        delegate.awakeFromNib();
        delegate.applicationDidFinishLaunching();
        window->show();
        fetch();
    }
    /// Lets the fetch that is under way, and what follows from it, finish.
    void fetch() {
        while (background.runOne() || main.runOne()) {
        }
        QApplication::processEvents();
    }
    /// By the name that assistive programs tell, or by the object's name where they tell its text.
    template <typename Widget>
    Widget* named(const char* name) const {
        for (Widget* widget : window->findChildren<Widget*>()) {
            if (widget->accessibleName() == QLatin1StringView(name) ||
                widget->objectName() == QLatin1StringView(name)) {
                return widget;
            }
        }
        ADD_FAILURE() << "no widget is called " << name;
        return nullptr;
    }

    MemorySettings settings;
    FakeEventStore store;
    FakeAlerts alerts;
    FakeQueue background;
    FakeQueue main;
    FakeTimer timer;
    FakeClock clock{utc(2024, 3, 6, 12)};
    FakeSavePanel panel;
    FakeProgress progress;
    FakeWorkspace workspace;
    FakeTaskLauncher launcher;
    FakeUpdater updater;
    QStringList problems;
    IcuCalendarArithmetic gregorian{"en_US", "UTC", CalendarSystem::Gregorian};
    IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    EventKitManager manager{store, settings, alerts, main};
    BillingSettingsSource billing{settings, gregorian};
    EventFields fields{billing, formats, gregorian, gregorian};
    ListController<Event> events{eventIdentityHash, isSameEvent};
    CalendarsArrayController calendars{settings, manager, formats, timer};
    CalendarGroupsArrayController groups{settings, alerts};
    CalendarGroupsArraySelectedCalendarsArrayController checklist{settings, groups};
    CalendarGroupsController groupsFilter{{settings, calendars, groups, timer}};
    EventsController eventsController{
        {manager, settings, billing, gregorian, events, calendars, background, main}};
    MissedChanges missedChanges{{settings, manager, calendars, main}};
    DateInspectorController inspector{{settings, clock, gregorian, gregorian, formats}};
    TimeColumnActions menuTimeColumns;
    TimeColumnActions headerTimeColumns;
    ExportItems exportItems;
    IcuCollator collator{"en_US"};
    EventOrder order{fields, gregorian, collator};
    EventTableModel model{events, fields, settings};
    EventTableView* table = new EventTableView(
        model, events, settings,
        [this](const QString& column, SortDirection direction) {
            return order.sorter(column, direction);
        },
        headerTimeColumns);
    EventItemViewController itemView{
        {settings,
         *table,
         {menuTimeColumns.hours, menuTimeColumns.minutes, menuTimeColumns.duration},
         {headerTimeColumns.hours, headerTimeColumns.minutes, headerTimeColumns.duration},
         calendars,
         gregorian,
         formats}};
    ColumnLayoutsArrayController columnLayouts{
        {.settings = settings, .eventsTableView = *table, .alerts = alerts}};
    TXTSettingsArrayController txtSettings{settings, alerts};
    ResultsPane* resultsPane = new ResultsPane(settings);
    EventResultsViewController results{
        {settings, *resultsPane, eventsController, events, billing, formats}};
    FakePasteboard pasteboard;
    EventItemTableView copying{{events, *table, fields, pasteboard}};
    FakeScriptRunner scripts;
    OpenCalendarEvent opening{{settings, events, scripts}};
    FakeInstalledPrograms installed;
    FakeTextColor textColor;
    FakeQueue reportQueue;
    EventNotesViewController notes{{settings, events, formats, gregorian}};
    ExportTxtViewController report{{settings, *table, events, calendars, fields}};
    ExportCSV exportCSV{{settings, *table, events, fields, panel, progress}};
    ExportTSV exportTSV{{settings, *table, events, fields, panel, progress}};
    ExportTXT exportTXT{{settings, formats, panel, alerts, scripts, installed, textColor, progress,
                         [this](const ExportProgress& asked) { return report.shownText(asked); }}};
    ExportNotes exportNotes{
        {settings, formats, panel, alerts, scripts, installed, textColor, progress,
         [this](const ExportProgress& asked) { return notes.shownText(asked); }}};
    AppDelegate delegate{
        {settings,
         workspace,
         launcher,
         updater,
         {&exportItems.text, &exportItems.csv, &exportItems.tsv, &exportItems.notes},
         {}}};
    std::unique_ptr<MainWindow> window;
};

} // namespace quillet::test
