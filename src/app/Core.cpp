#include "app/Core.h"

#include "platform/Settings.h"

#include <QPointer>

namespace quillet {

Core::Core(const CoreSeams& seams)
    : settings(seams.settings)
    , formats(seams.formats)
    , gregorian(seams.gregorian)
    , eventKitManager(seams.store, settings, seams.alerts, seams.mainQueue)
    , billing(settings, gregorian)
    , fields(billing, formats, gregorian, seams.currentCalendar)
    , events(eventIdentityHash, isSameEvent)
    , calendars(settings, eventKitManager, formats, seams.timer)
    , calendarGroups(settings, seams.alerts)
    , calendarGroupsChecklist(settings, calendarGroups)
    , calendarGroupsFilter({settings, calendars, calendarGroups, seams.timer})
    , eventsController({eventKitManager, settings, billing, gregorian, events, calendars,
                        seams.fetchQueue, seams.mainQueue})
    , dateInspector({settings, seams.clock, gregorian, seams.currentCalendar, formats})
    , eventOrder(fields, seams.currentCalendar, seams.collator)
    , eventTable(seams.eventTable)
    , eventItemTableView({events, eventTable, fields, seams.pasteboard})
    , openCalendarEvent({settings, events, seams.scriptRunner})
    , eventItemView({settings, eventTable, calendars, gregorian, formats})
    , eventResults({settings, eventsController, events, billing, formats})
    , columnLayouts({settings, eventTable, seams.alerts})
    , eventNotes({settings, events, formats, gregorian})
    , txtSettings(settings, seams.alerts)
    , exportTxtView({settings, eventTable, events, calendars, fields})
    , exportCSV({settings, eventTable, events, fields, seams.savePanel, seams.progress})
    , exportTSV({settings, eventTable, events, fields, seams.savePanel, seams.progress})
    , exportTXT(
          {settings, formats, seams.savePanel, seams.alerts, seams.scriptRunner,
           seams.installedPrograms, seams.textColor, seams.progress,
           [this](const ExportProgress& progress) { return exportTxtView.shownText(progress); }})
    , exportNotes(
          {settings, formats, seams.savePanel, seams.alerts, seams.scriptRunner,
           seams.installedPrograms, seams.textColor, seams.progress,
           [this](const ExportProgress& progress) { return eventNotes.shownText(progress); }})
    , search(settings, events)
    , preferences(settings)
    , views(settings)
    , appDelegate(
          {settings, seams.workspace, seams.taskLauncher, seams.updater, seams.releaseNotesPath}) {
    fetchAgainWhenOutdated(seams.mainQueue);
}

Core::~Core() = default;

void Core::fetchAgainWhenOutdated(SerialQueue& mainQueue) {
    QObject::connect(&eventsController, &EventsController::fetchOutdated, &eventsController,
                     [this, &mainQueue] {
                         // Later, so that all who wait for the end of this fetch have heard of it.
                         mainQueue.async([controller = QPointer(&eventsController), this] {
                             if (controller) {
                                 settings::datesChangedTrigger.flip(settings);
                             }
                         });
                     });
}

void Core::wake() {
    billing.migrateHourlyRate();
    calendars.awakeFromNib();
    calendarGroups.awakeFromNib();
    calendarGroupsChecklist.awakeFromNib();
    calendarGroupsFilter.awakeFromNib();
    dateInspector.awakeFromNib();
    openCalendarEvent.awakeFromNib();
    eventResults.awakeFromNib();
    columnLayouts.awakeFromNib();
    eventNotes.awakeFromNib();
    txtSettings.awakeFromNib();
    exportTxtView.awakeFromNib();
    eventItemView.awakeFromNib();
    preferences.awakeFromNib();
    search.awakeFromNib();
    views.awakeFromNib();
    eventsController.awakeFromNib();
}

void Core::finishLaunching() {
    appDelegate.applicationDidFinishLaunching();
}

void Core::becomeActiveFirst() {
    eventKitManager.becomeActive();
    // Access that was granted in an earlier run, whose settings are gone, is announced by nobody.
    if (eventKitManager.eventCalendarsAccessGranted()) {
        calendars.syncCalendars();
    }
}

} // namespace quillet
