#pragma once

#include "eventtable/ColumnLayout.h"
#include "support/EventSamples.h"
#include "support/FakeOutside.h"
#include "window/events/EventTableModel.h"
#include "window/events/EventTableView.h"
#include "window/main/MainWindow.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace quillet::test {

/// The real window and controllers over a store, a clock and queues that the test holds.
class WindowFixture : public testing::Test, protected FakeOutside {
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
        // The window owns it once that is there.
        if (window == nullptr) {
            delete table;
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
        applyPlacements(defaultColumnPlacements(), columns);
        core.wake();
        window = std::make_unique<MainWindow>(
            core,
            MainWindow::Parts{
                .eventTable = *table,
                .reportBuilding = {reportQueue, main, formats, gregorian},
                .calendarActions = {
                    .addCalendar = [](const QString&) { return std::expected<void, QString>(); },
                    .allowAccess = [] {},
                    .problems = [this] { return problems; },
                    .colorOf = [](const QString&) { return QColor(Qt::red); }},
                .mayQuit = [this] { return mayQuit(); }});
        core.finishLaunching();
        window->show();
        fetch();
    }
    /// Lets the fetch that is under way, and what follows from it, finish.
    void fetch() {
        finish();
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

    QStringList problems;
    std::function<bool()> mayQuit = [] { return true; };
    FakeQueue reportQueue;
    Core core{seams()};
    ListController<Event>& events = core.events;
    EventTableModel model{events, core.fields, settings};
    EventTableView* table = new EventTableView(
        model, columns, events, settings, [this](const QString& column, SortDirection direction) {
            return core.eventOrder.sorter(column, direction);
        });
    CalendarsArrayController& calendars = core.calendars;
    CalendarGroupsArrayController& groups = core.calendarGroups;
    CalendarGroupsController& groupsFilter = core.calendarGroupsFilter;
    DateInspectorController& inspector = core.dateInspector;
    EventItemViewController& itemView = core.eventItemView;
    ColumnLayoutsArrayController& columnLayouts = core.columnLayouts;
    TXTSettingsArrayController& txtSettings = core.txtSettings;
    EventNotesViewController& notes = core.eventNotes;
    ExportTxtViewController& report = core.exportTxtView;
    ExportCSV& exportCSV = core.exportCSV;
    std::unique_ptr<MainWindow> window;
};

} // namespace quillet::test
