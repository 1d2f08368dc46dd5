#include "Program.h"

#include "CalendarService.h"
#include "backends/activation/WindowFront.h"
#include "backends/programs/SoftwareCentre.h"
#include "eventtable/ColumnLayout.h"
#include "platform/FileReading.h"
#include "texts/Localized.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTimer>

#include <map>
#include <tuple>

namespace quillet {

namespace {

constexpr qint64 largestWindowState = 1'000'000;

std::vector<std::reference_wrapper<EventStore>> present(EventStore& folder, EventStore* service) {
    return service == nullptr ? std::vector{std::ref(folder)}
                              : std::vector{std::ref(folder), std::ref(*service)};
}

bool showInSoftwareCentre(TaskLauncher& launcher) {
    const Applications applications(launcher, applicationIdentifier() + QStringLiteral(".desktop"));
    SessionBusPortal portal;
    const SoftwareCentre centre(applications, isInSandbox() ? &portal : nullptr);
    return centre.show(applicationIdentifier()).has_value();
}

} // namespace

Program::Program(const ProgramPaths& paths, ApplicationService& service)
    : paths_(paths)
    , service_(service)
    , settings_(paths.settingsFile)
    , timeZone_(std::make_shared<UserTimeZone>(QTimeZone::systemTimeZone()))
    , locales_(localeNamesOfProcess())
    , gregorian_(locales_.time, timeZone_, CalendarSystem::Gregorian)
    , currentCalendar_(locales_.time, timeZone_, CalendarSystem::OfLocale)
    , formats_(locales_, timeZone_)
    , quitQuestion_([this] { return isSaved(); }, dialogs_)
    , taskLauncher_([this] { settings_.flush(); }, [this] { service_.endSoon(); })
    , scriptRunner_({taskLauncher_, pasteboard_, dialogs_,
                     [this](const EventRequest& request) { return placeOf(request); }})
    , access_(
          paths.stateFolder,
          [this](const CalendarAccess::Answer& answer) { answer(dialogs_.askForCalendarAccess()); })
    , folderStore_(paths.calendarsFolder, access_, timeZone_,
                   paths.stateFolder + QStringLiteral("/folder-calendars.json"))
    , calendarService_(makeCalendarService(
          access_, paths.stateFolder,
          [this](Instant instant) { return formats_.shortTime(instant); }, timeZone_))
    , store_(present(folderStore_, calendarService_.get()))
    , mainQueue_(makeMainQueue())
    , timer_(makeOneShotTimer())
    , fetchQueue_(makeBackgroundQueue(EventsController::backgroundEventFetchQueueLabel()))
    , collator_(locales_.collation)
    , updateDialogs_(formats_)
    , updater_({.presenter = updateDialogs_,
                .address = releaseListAddress(),
                .installedVersion = QCoreApplication::applicationVersion(),
                .languages = paths.languages,
                .openSoftwareCentre = [this] { return showInSoftwareCentre(taskLauncher_); },
                .security = &QSslConfiguration::defaultConfiguration,
                .limits = ReleaseListUpdater::usualLimits})
    , columns_(settings_)
    , core_(seams())
    , eventModel_(core_.events, core_.fields, settings_)
    , eventTable_(makeTable())
    , reportFormats_(locales_, timeZone_)
    , reportCalendar_(locales_.time, timeZone_, CalendarSystem::Gregorian)
    , reportQueue_(makeBackgroundQueue(QStringLiteral("org.quillet.Quillet.textReport")))
    , activation_(clock_, [this] { core_.eventKitManager.becomeActive(); })
    , datesZone_(paths.stateFolder + QStringLiteral("/dates-zone")) {}

CoreSeams Program::seams() {
    return {.settings = settings_,
            .store = store_,
            .clock = clock_,
            .formats = formats_,
            .gregorian = gregorian_,
            .currentCalendar = currentCalendar_,
            .collator = collator_,
            .fetchQueue = *fetchQueue_,
            .mainQueue = *mainQueue_,
            .timer = *timer_,
            .alerts = dialogs_,
            .savePanel = dialogs_,
            .progress = dialogs_,
            .textColor = textColor_,
            .pasteboard = pasteboard_,
            .scriptRunner = scriptRunner_,
            .installedPrograms = installedPrograms_,
            .workspace = workspace_,
            .taskLauncher = taskLauncher_,
            .updater = updater_,
            .releaseNotesPath = paths_.releaseNotes,
            .eventTable = columns_};
}

EventTableView* Program::makeTable() {
    auto* table = new EventTableView(eventModel_, columns_, core_.events, settings_,
                                     [this](const QString& column, SortDirection direction) {
                                         return core_.eventOrder.sorter(column, direction);
                                     });
    const QSettings state(windowStateFile(), QSettings::IniFormat);
    if (!table->restoreColumnState(state.value(QStringLiteral("columns")).toByteArray())) {
        applyPlacements(defaultColumnPlacements(), columns_);
    }
    return table;
}

Program::~Program() {
    // First, so that a report that is being built is given up instead of waited for.
    window_.reset();
    // The main queue's last tasks would find their receivers gone.
    fetchQueue_.reset();
    reportQueue_.reset();
}

void Program::save() {
    settings_.flush();
    window_->saveState(windowStateFile());
}

bool Program::isSaved() {
    settings_.flush();
    return settings_.isWritten();
}

QString Program::windowStateFile() const {
    QString path = paths_.stateFolder + QStringLiteral("/window.ini");
    const auto contents = contentsOfFile(path, largestWindowState);
    if (!contents && contents.error().kind != FileRefusal::Kind::Missing) {
        std::ignore = movedAside(path);
    }
    return path;
}

void Program::start() {
    followTimeZone();
    core_.wake();
    window_ = std::make_unique<MainWindow>(
        core_, MainWindow::Parts{
                   .eventTable = *eventTable_,
                   .reportBuilding = {*reportQueue_, *mainQueue_, reportFormats_, reportCalendar_},
                   .calendarActions = calendarActions(),
                   .mayQuit = [this] { return quitQuestion_.mayQuit(); }});
    dialogs_.setWindow(window_.get());
    updateDialogs_.setWindow(window_.get());
    connectNotices();
    core_.finishLaunching();
    window_->restoreState(windowStateFile());
    window_->refreshProblems();
    window_->showMessage(settings_.startMessage().value_or(QString()));
    window_->show();
    serveDesktop();
    QTimer::singleShot(0, window_.get(), [this] { core_.becomeActiveFirst(); });
}

void Program::followTimeZone() {
    // Those of the last run, which may have been elsewhere.
    if (const QTimeZone former = datesZone_.kept();
        former.isValid() && former.id() != timeZone_->zone().id()) {
        core_.dateInspector.moveDatesFrom(*ZoneRules::fromTimeZone(former));
        settings_.flush();
    }
    datesZone_.keep(timeZone_->zone());
    // Behind the stores, which by then read their events anew.
    zoneObservation_ = timeZone_->observe([this](const ZoneRules& former) {
        core_.eventOrder.followZoneChange();
        core_.dateInspector.followZoneChange(former);
        settings_.flush();
        datesZone_.keep(timeZone_->zone());
    });
    zoneWatch_ = std::make_unique<SystemZoneWatch>(timeZone_);
}

void Program::connectNotices() {
    QObject::connect(&core_.eventKitManager, &EventKitManager::accessGranted, window_.get(),
                     [this] { core_.appDelegate.accessGranted(); });
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
        core_.dateInspector.choosePeriodKind(kind->second);
        core_.dateInspector.setQuickDates(PeriodStep::Current);
    }
}

EventPlace Program::placeOf(const EventRequest& request) const {
    EventPlace place{.serviceCalendar = identifierWithinService(request.calendarIdentifier),
                     .file =
                         folderStore_.fileOf(request.calendarIdentifier, request.eventIdentifier),
                     .start = {}};
    for (const Event& event : core_.events.selectedObjects()) {
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
                    for (const auto& calendar : core_.eventKitManager.eventCalendars()) {
                        if (calendar->calendarIdentifier == identifier) {
                            return QColor(calendar->colorName);
                        }
                    }
                    return QColor();
                }};
}

void Program::askForAccessAgain() {
    access_.forget();
    core_.eventKitManager.becomeActive();
    if (access_.status() == AuthorizationStatus::Denied) {
        core_.eventKitManager.becomeActive();
    }
}

} // namespace quillet
