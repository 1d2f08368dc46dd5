#include "Program.h"

#include "CalendarService.h"
#include "backends/activation/WindowFront.h"
#include "backends/programs/SoftwareCentre.h"
#include "eventtable/ColumnLayout.h"
#include "texts/Localized.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTimer>

#include <map>

namespace quillet {

namespace {

const QString windowStateFile = QStringLiteral("/window.ini");

EventItemViewController::TimeMenuItems items(TimeColumnActions& actions) {
    return {actions.hours, actions.minutes, actions.duration};
}

std::vector<std::reference_wrapper<EventStore>> present(EventStore& folder, EventStore* service) {
    return service == nullptr ? std::vector{std::ref(folder)}
                              : std::vector{std::ref(folder), std::ref(*service)};
}

bool showInSoftwareCentre(TaskLauncher& launcher) {
    const Applications applications(DesktopEntries(desktopFolders(processEnvironment())), launcher,
                                    applicationIdentifier() + QStringLiteral(".desktop"));
    SessionBusPortal portal;
    const SoftwareCentre centre(applications, isInSandbox() ? &portal : nullptr);
    return centre.show(applicationIdentifier()).has_value();
}

std::vector<ToolbarItem*> toolbarItems(ExportItems& items) {
    return {&items.text, &items.csv, &items.tsv, &items.mail, &items.notes};
}

} // namespace

Program::Program(const ProgramPaths& paths, ApplicationService& service)
    : paths_(paths)
    , service_(service)
    , settings_(paths.settingsFile)
    , timeZone_(systemTimeZoneName())
    , locales_(localeNamesOfProcess())
    , gregorian_(locales_.time, timeZone_, CalendarSystem::Gregorian)
    , currentCalendar_(locales_.time, timeZone_, CalendarSystem::OfLocale)
    , formats_(locales_, timeZone_)
    , taskLauncher_([this] { settings_.flush(); }, [this] { service_.endSoon(); })
    , scriptRunner_({taskLauncher_, pasteboard_, dialogs_,
                     [this](const EventRequest& request) { return placeOf(request); }})
    , access_(
          paths.stateFolder,
          [this](const CalendarAccess::Answer& answer) { answer(dialogs_.askForCalendarAccess()); })
    , folderStore_(paths.calendarsFolder, access_, QTimeZone::systemTimeZone(),
                   paths.stateFolder + QStringLiteral("/folder-calendars.json"))
    , calendarService_(
          makeCalendarService(access_, paths.stateFolder,
                              [this](Instant instant) { return formats_.shortTime(instant); }))
    , store_(present(folderStore_, calendarService_.get()))
    , mainQueue_(makeMainQueue())
    , timer_(makeOneShotTimer())
    , eventKitManager_(store_, settings_, dialogs_, *mainQueue_)
    , billing_(settings_, gregorian_)
    , fields_(billing_, formats_, gregorian_, currentCalendar_)
    , events_(eventIdentityHash, isSameEvent)
    , calendars_(settings_, eventKitManager_, formats_, *timer_)
    , calendarGroups_(settings_, dialogs_)
    , calendarGroupsChecklist_(settings_, calendarGroups_)
    , calendarGroupsFilter_({settings_, calendars_, calendarGroups_, *timer_})
    , fetchQueue_(makeBackgroundQueue(EventsController::backgroundEventFetchQueueLabel()))
    , eventsController_({eventKitManager_, settings_, billing_, gregorian_, events_, calendars_,
                         *fetchQueue_, *mainQueue_})
    , missedChanges_({settings_, eventKitManager_, calendars_, *mainQueue_})
    , dateInspector_({settings_, clock_, gregorian_, currentCalendar_, formats_})
    , collator_(locales_.collation)
    , eventOrder_(fields_, currentCalendar_, collator_)
    , eventModel_(events_, fields_, settings_)
    , eventTable_(new EventTableView(
          eventModel_, events_, settings_,
          [this](const QString& column, SortDirection direction) {
              return eventOrder_.sorter(column, direction);
          },
          headerTimeColumns_))
    , resultsPane_(new ResultsPane(settings_))
    , eventItemTableView_({events_, *eventTable_, fields_, pasteboard_})
    , openCalendarEvent_({settings_, events_, scriptRunner_})
    , eventItemView_({settings_, *eventTable_, items(menuTimeColumns_), items(headerTimeColumns_),
                      calendars_, gregorian_, formats_})
    , eventResults_({settings_, *resultsPane_, eventsController_, events_, billing_, formats_})
    , columnLayouts_({settings_, *eventTable_, dialogs_})
    , eventNotes_({settings_, events_, formats_, gregorian_})
    , txtSettings_(settings_, dialogs_)
    , exportTxtView_({settings_, *eventTable_, events_, calendars_, fields_})
    , exportCSV_({settings_, *eventTable_, events_, fields_, dialogs_, dialogs_})
    , exportTSV_({settings_, *eventTable_, events_, fields_, dialogs_, dialogs_})
    , exportTXT_(
          {settings_, formats_, dialogs_, dialogs_, scriptRunner_, installedPrograms_, textColor_,
           dialogs_,
           [this](const ExportProgress& progress) { return exportTxtView_.shownText(progress); }})
    , exportNotes_(
          {settings_, formats_, dialogs_, dialogs_, scriptRunner_, installedPrograms_, textColor_,
           dialogs_,
           [this](const ExportProgress& progress) { return eventNotes_.shownText(progress); }})
    , reportFormats_(locales_, timeZone_)
    , reportCalendar_(locales_.time, timeZone_, CalendarSystem::Gregorian)
    , reportQueue_(makeBackgroundQueue(QStringLiteral("org.quillet.Quillet.textReport")))
    , updateDialogs_(formats_)
    , updater_({.presenter = updateDialogs_,
                .address = releaseListAddress(),
                .installedVersion = QCoreApplication::applicationVersion(),
                .languages = paths.languages,
                .openSoftwareCentre = [this] { return showInSoftwareCentre(taskLauncher_); },
                .security = &QSslConfiguration::defaultConfiguration,
                .limits = ReleaseListUpdater::usualLimits})
    , appDelegate_({settings_, workspace_, taskLauncher_, updater_, toolbarItems(exportItems_),
                    paths.releaseNotes})
    , activation_(clock_, [this] { eventKitManager_.becomeActive(); }) {}

Program::~Program() {
    if (window_) {
        window_->saveState(paths_.stateFolder + windowStateFile);
        // First, so that a report that is being built is given up instead of waited for.
        window_.reset();
    }
    // The main queue's last tasks would find their receivers gone.
    fetchQueue_.reset();
    reportQueue_.reset();
}

void Program::start() {
    wake();
    window_ = std::make_unique<MainWindow>(MainWindow::Collaborators{
        settings_,
        formats_,
        gregorian_,
        events_,
        calendars_,
        WindowGroups{calendarGroups_, calendarGroupsChecklist_, calendarGroupsFilter_},
        dateInspector_,
        eventItemView_,
        exports(),
        {columnLayouts_, txtSettings_},
        appDelegate_,
        *eventTable_,
        *resultsPane_,
        exportItems_,
        menuTimeColumns_,
        calendarActions()});
    dialogs_.setWindow(window_.get());
    updateDialogs_.setWindow(window_.get());
    connectNotices();
    appDelegate_.awakeFromNib();
    appDelegate_.applicationDidFinishLaunching();
    window_->restoreState(paths_.stateFolder + windowStateFile);
    window_->refreshProblems();
    window_->showMessage(settings_.startMessage().value_or(QString()));
    window_->show();
    serveDesktop();
    QTimer::singleShot(0, window_.get(), [this] { becomeActiveFirst(); });
}

void Program::becomeActiveFirst() {
    eventKitManager_.becomeActive();
    // Access that was granted in an earlier run, whose settings are gone, is announced by nobody.
    if (eventKitManager_.eventCalendarsAccessGranted()) {
        calendars_.syncCalendars();
    }
}

void Program::wake() {
    billing_.migrateHourlyRate();
    calendars_.awakeFromNib();
    calendarGroups_.awakeFromNib();
    calendarGroupsChecklist_.awakeFromNib();
    calendarGroupsFilter_.awakeFromNib();
    dateInspector_.awakeFromNib();
    arrangeColumns();
    eventTable_->follow(eventItemTableView_);
    openCalendarEvent_.awakeFromNib();
    eventTable_->follow(openCalendarEvent_);
    eventResults_.awakeFromNib();
    resultsPane_->follow(eventResults_);
    columnLayouts_.awakeFromNib();
    eventNotes_.awakeFromNib();
    txtSettings_.awakeFromNib();
    exportTxtView_.awakeFromNib();
    eventItemView_.awakeFromNib();
    missedChanges_.awakeFromNib();
    eventsController_.awakeFromNib();
}

void Program::arrangeColumns() {
    const QSettings state(paths_.stateFolder + windowStateFile, QSettings::IniFormat);
    if (!eventTable_->restoreColumnState(state.value(QStringLiteral("columns")).toByteArray())) {
        applyPlacements(defaultColumnPlacements(), *eventTable_);
    }
}

void Program::connectNotices() {
    QObject::connect(&eventKitManager_, &EventKitManager::accessGranted, window_.get(),
                     [this] { appDelegate_.accessGranted(); });
    storeObservation_ = store_.observeChanges([this] { window_->refreshProblems(); });
    settingsProblemObservation_ = settings_.observeWriteProblem(
        [this](const QString& problem) { window_->showMessage(problem); });
}

void Program::serveDesktop() {
    auto* offer = new CalendarOffer(calendarActions().addCalendar, *window_);
    const auto comeToFront = [this](const QString& token) {
        bringToFront(*window_->windowHandle(), token);
    };
    service_.serve({.activate = comeToFront,
                    .open =
                        [comeToFront, offer](const QStringList& addresses, const QString& token) {
                            comeToFront(token);
                            offer->offer(addresses);
                        },
                    .activateAction =
                        [this, comeToFront](const QString& action, const QString& token) {
                            comeToFront(token);
                            perform(action);
                        }});
}

void Program::perform(const QString& desktopAction) {
    const std::map<QString, PeriodKind> kinds{{QStringLiteral("this-week"), PeriodKind::Week},
                                              {QStringLiteral("this-month"), PeriodKind::Month}};
    if (const auto kind = kinds.find(desktopAction); kind != kinds.end()) {
        dateInspector_.choosePeriodKind(kind->second);
        dateInspector_.setQuickDates(PeriodStep::Current);
    }
}

WindowExports Program::exports() {
    return {exportCSV_,     exportTSV_,
            exportTXT_,     exportNotes_,
            exportTxtView_, {*reportQueue_, *mainQueue_, reportFormats_, reportCalendar_},
            eventNotes_};
}

EventPlace Program::placeOf(const EventRequest& request) const {
    EventPlace place{.serviceCalendar = identifierWithinService(request.calendarIdentifier),
                     .file =
                         folderStore_.fileOf(request.calendarIdentifier, request.eventIdentifier),
                     .start = {}};
    for (const Event& event : events_.selectedObjects()) {
        if (event.details->eventIdentifier == request.eventIdentifier) {
            place.start =
                QDateTime::fromMSecsSinceEpoch(event.startDate.time_since_epoch().count());
            if (const auto& names = event.details->occurrenceNames) {
                place.occurrence = names->nameOf(event.occurrenceDate);
                place.isException = names->isException();
            }
        }
    }
    return place;
}

CalendarActions Program::calendarActions() {
    return {.addCalendar = [this](const QString& path) { return folderStore_.addCalendar(path); },
            .allowAccess = [this] { askForAccessAgain(); },
            .problems =
                [this] {
                    QStringList lines;
                    for (const StoreProblem& problem : store_.problems()) {
                        lines << QStringLiteral("%1: %2").arg(problem.subject, problem.reason);
                    }
                    return lines;
                },
            .colorOf =
                [this](const QString& identifier) {
                    for (const auto& calendar : eventKitManager_.eventCalendars()) {
                        if (calendar->calendarIdentifier == identifier) {
                            return QColor(calendar->colorName);
                        }
                    }
                    return QColor();
                }};
}

void Program::askForAccessAgain() {
    access_.forget();
    eventKitManager_.becomeActive();
    if (access_.status() == AuthorizationStatus::Denied) {
        eventKitManager_.becomeActive();
    }
}

} // namespace quillet
