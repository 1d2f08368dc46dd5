#pragma once

#include "app/AppDelegate.h"
#include "app/AppViewsController.h"
#include "app/PreferencesWindowController.h"
#include "calendars/CalendarGroupsArrayController.h"
#include "calendars/CalendarGroupsArraySelectedCalendarsArrayController.h"
#include "calendars/CalendarGroupsController.h"
#include "calendars/CalendarsArrayController.h"
#include "eventdata/EventFields.h"
#include "eventdata/EventKitManager.h"
#include "eventdata/EventsController.h"
#include "eventtable/ColumnLayoutsArrayController.h"
#include "eventtable/EventItemTableView.h"
#include "eventtable/EventItemViewController.h"
#include "eventtable/EventOrder.h"
#include "export/ExportCSV.h"
#include "export/ExportNotes.h"
#include "export/ExportTSV.h"
#include "export/ExportTXT.h"
#include "export/ExportTxtViewController.h"
#include "export/TXTSettingsArrayController.h"
#include "period/DateInspectorController.h"
#include "results/EventNotesViewController.h"
#include "results/EventResultsViewController.h"
#include "results/OpenCalendarEvent.h"
#include "results/SearchFieldController.h"

namespace quillet {

/// All that the controllers want of the outside. It must outlive the core.
struct CoreSeams {
    SettingsStore& settings;
    EventStore& store;
    const Clock& clock;
    const LocaleFormats& formats;
    /// Gregorian, in the system's time zone.
    const CalendarArithmetic& gregorian;
    /// The calendar of the user's locale, in the same zone.
    const CalendarArithmetic& currentCalendar;
    const Collator& collator;
    /// Serial, with a thread of its own; see EventsController::backgroundEventFetchQueueLabel().
    SerialQueue& fetchQueue;
    SerialQueue& mainQueue;
    OneShotTimer& timer;
    AlertPresenter& alerts;
    SavePanel& savePanel;
    ProgressPresenter& progress;
    const TextColorSource& textColor;
    Pasteboard& pasteboard;
    ScriptRunner& scriptRunner;
    const InstalledPrograms& installedPrograms;
    Workspace& workspace;
    TaskLauncher& taskLauncher;
    SoftwareUpdater& updater;
    /// The release notes, rich text.
    QString releaseNotesPath;
    /// As its columns stand when the program starts.
    ColumnTable& eventTable;
};

/// Every controller of the logic, built and woken in the one order: the members stand in the order
/// in which they need each other, and wake() in that in which they hear of settings. A window shows
/// a core, and a program without one holds it just the same.
class Core {
public:
    explicit Core(const CoreSeams& seams);
    ~Core();
    Q_DISABLE_COPY_MOVE(Core)

    /// Lets each controller write its first-run settings and begin to observe; the first fetch is
    /// the last step. Once, before a window is built on this.
    void wake();
    /// All stands, the window too: writes the first-run settings that are still absent.
    void finishLaunching();
    /// The program came to the front for the first time: looks at the access to the calendars.
    void becomeActiveFirst();

    SettingsStore& settings;
    const LocaleFormats& formats;
    const CalendarArithmetic& gregorian;

    EventKitManager eventKitManager;
    BillingSettingsSource billing;
    EventFields fields;
    ListController<Event> events;
    CalendarsArrayController calendars;
    CalendarGroupsArrayController calendarGroups;
    CalendarGroupsArraySelectedCalendarsArrayController calendarGroupsChecklist;
    CalendarGroupsController calendarGroupsFilter;
    EventsController eventsController;
    DateInspectorController dateInspector;
    EventOrder eventOrder;
    ColumnTable& eventTable;
    EventItemTableView eventItemTableView;
    OpenCalendarEvent openCalendarEvent;
    EventItemViewController eventItemView;
    EventResultsViewController eventResults;
    ColumnLayoutsArrayController columnLayouts;
    EventNotesViewController eventNotes;
    TXTSettingsArrayController txtSettings;
    ExportTxtViewController exportTxtView;
    ExportCSV exportCSV;
    ExportTSV exportTSV;
    ExportTXT exportTXT;
    ExportNotes exportNotes;
    SearchFieldController search;
    PreferencesWindowController preferences;
    AppViewsController views;
    AppDelegate appDelegate;

private:
    void fetchAgainWhenOutdated(SerialQueue& mainQueue);
};

} // namespace quillet
