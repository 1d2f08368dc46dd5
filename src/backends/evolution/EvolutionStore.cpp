#include "backends/evolution/EvolutionStore.h"

#include "backends/combined/CalendarMemory.h"
#include "backends/evolution/Glib.h"
#include "backends/evolution/ServiceSession.h"
#include "texts/Localized.h"

#include <QFileInfo>

#include <set>

namespace quillet {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

namespace {

/// How long a receiver may still be busy with the events of a query that has ended.
constexpr milliseconds afterQuery{300};

QString memoryPath(const QString& stateFolder) {
    return stateFolder + QStringLiteral("/desktop-calendars.json");
}

/// Whether there is an address to look for the session bus at. Without one, looking for it would
/// start a bus that nothing else is on.
bool hasSessionBus() {
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// Whether the schemas of the service's settings are installed. Its library ends the whole program
/// where they are not.
bool hasSchemas() {
    GSettingsSchemaSource* const installed = g_settings_schema_source_get_default();
    const auto isInstalled = [installed](const char* name) {
        GSettingsSchema* const schema = g_settings_schema_source_lookup(installed, name, TRUE);
        if (schema != nullptr) {
            g_settings_schema_unref(schema);
        }
        return schema != nullptr;
    };
    return installed != nullptr && isInstalled("org.gnome.Evolution.DefaultSources") &&
           isInstalled("org.gnome.evolution-data-server") &&
           isInstalled("org.gnome.evolution-data-server.calendar");
}

ServicePicture::Service serviceBeforeStart() {
    if (!hasSessionBus()) {
        return ServicePicture::Service::NoSessionBus;
    }
    return hasSchemas() ? ServicePicture::Service::Starting : ServicePicture::Service::Missing;
}

ServicePicture pictureBeforeStart(const QString& stateFolder) {
    const ServicePicture::Service service = serviceBeforeStart();
    const bool canStart = service == ServicePicture::Service::Starting;
    const Instant now = SystemClock().now();
    ServicePicture picture{service, now, {}};
    const CalendarMemory memory(memoryPath(stateFolder));
    for (const auto& calendar : memory.calendars()) {
        CalendarState state;
        state.calendar = calendar;
        state.condition =
            canStart ? CalendarState::Condition::BeingRead : CalendarState::Condition::Unreachable;
        state.isSettled = !canStart;
        state.since = now;
        picture.calendars.push_back(std::move(state));
    }
    return picture;
}

} // namespace

EvolutionStore::EvolutionStore(CalendarAccess& access, Setup setup)
    : access_(access)
    , with_(std::move(setup))
    , board_(std::make_shared<PictureBoard>(pictureBeforeStart(with_.stateFolder))) {
    secondNotice_.setSingleShot(true);
    secondNotice_.setInterval(afterQuery);
    QObject::connect(&secondNotice_, &QTimer::timeout, &secondNotice_, [this] {
        if (runningQueries_ > 0) {
            secondNotice_.start();
        }
        observers_.notify();
    });
    accessObservation_ = access_.observeStatus([this] { startIfAllowed(); });
    zoneObservation_ = with_.zone->observe([this](const ZoneRules&) { readAgain(); });
    startIfAllowed();
}

EvolutionStore::~EvolutionStore() = default;

AuthorizationStatus EvolutionStore::authorizationStatus() const {
    const auto picture = board_->current();
    const bool isThere = picture->service != ServicePicture::Service::Missing &&
                         picture->service != ServicePicture::Service::NoSessionBus;
    return isThere || !picture->calendars.empty() ? access_.status()
                                                  : AuthorizationStatus::Restricted;
}

void EvolutionStore::requestAccess(AccessCompletion completion) {
    access_.request(std::move(completion));
}

CalendarList EvolutionStore::calendars() const {
    CalendarList listed;
    if (access_.status() == AuthorizationStatus::Authorized) {
        for (const CalendarState& state : board_->current()->calendars) {
            listed.push_back(state.calendar);
        }
    }
    return listed;
}

EventList EvolutionStore::events(const CalendarList& calendars, Instant from, Instant to) const {
    if (access_.status() != AuthorizationStatus::Authorized) {
        return {};
    }
    ++runningQueries_;
    const auto picture = board_->settled(calendars, with_.limits.patience);
    std::vector<std::shared_ptr<const CalendarContents>> wanted;
    std::set<QString> asked;
    for (const auto& calendar : calendars) {
        const CalendarState* state = picture->stateOf(calendar->calendarIdentifier);
        if (state != nullptr && asked.insert(calendar->calendarIdentifier).second) {
            wanted.push_back(state->contents);
        }
    }
    CalendarsAnswer answer = eventsOf(wanted, from, to);
    hasTooMany_ = !answer.isComplete;
    lastQueryEnd_ = steady_clock::now();
    --runningQueries_;
    return std::move(answer.events);
}

Observation EvolutionStore::observeChanges(std::function<void()> callback) {
    return observers_.add(std::move(callback));
}

std::vector<StoreProblem> EvolutionStore::problems() const {
    if (access_.status() != AuthorizationStatus::Authorized) {
        return {};
    }
    auto found = board_->current()->problems(with_.shortTime);
    if (hasTooMany_) {
        found.insert(found.begin(), {localized("Desktop calendars"),
                                     localized("repetitions too many to show them all")});
    }
    return found;
}

void EvolutionStore::startIfAllowed() {
    if (access_.status() != AuthorizationStatus::Authorized) {
        // Nothing is read, nor kept up to date, against the user's will.
        thread_.reset();
        return;
    }
    if (thread_ || serviceBeforeStart() != ServicePicture::Service::Starting) {
        return;
    }
    const ServiceSession::Setup setup{with_.zone->zone(), with_.limits,
                                      memoryPath(with_.stateFolder), board_,
                                      [this, queue = mainQueue_, life = std::weak_ptr(life_)] {
                                          queue->async([this, life] {
                                              if (!life.expired()) {
                                                  announce();
                                              }
                                          });
                                      }};
    thread_ = std::make_unique<LoopThread>(
        [setup]() -> std::shared_ptr<void> { return std::make_shared<ServiceSession>(setup); });
}

void EvolutionStore::readAgain() {
    thread_.reset();
    startIfAllowed();
    announce();
}

void EvolutionStore::announce() {
    if (isQueryRecent()) {
        secondNotice_.start();
    }
    observers_.notify();
}

bool EvolutionStore::isQueryRecent() const {
    return runningQueries_ > 0 || steady_clock::now() - lastQueryEnd_.load() < afterQuery;
}

} // namespace quillet
