#include "backends/evolution/ServiceSession.h"

#include "backends/evolution/SourceDescription.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

using Service = ServicePicture::Service;

/// Whether anybody answers behind the registry: the service has sources of its own, whatever the
/// user's are, but the library opens a registry that is empty where no service can be started.
bool hasSources(ESourceRegistry* registry) {
    GList* sources = e_source_registry_list_sources(registry, nullptr);
    const bool isAny = sources != nullptr;
    g_list_free_full(sources, g_object_unref);
    return isAny;
}

/// The one of the names "(as)" that is that of the service's registry, in whichever version.
QByteArray registryName(GVariant* names) {
    GVariantIter* each = nullptr;
    g_variant_get(names, "(as)", &each);
    const char* name = nullptr;
    QByteArray found;
    while (g_variant_iter_next(each, "&s", &name) != FALSE) {
        if (g_str_has_prefix(name, "org.gnome.evolution.dataserver.Sources") != FALSE) {
            found = name;
        }
    }
    g_variant_iter_free(each);
    return found;
}

/// Whether a start failed because there is nothing to start. The bus may know the service by name
/// all the same: Debian installs that knowledge with the library already.
bool isWithoutProgram(const CallError& error) {
    return error.is(G_DBUS_ERROR, G_DBUS_ERROR_SPAWN_EXEC_FAILED) ||
           error.is(G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN) ||
           error.remoteName() == "org.freedesktop.systemd1.NoSuchUnit";
}

} // namespace

ServiceSession::ServiceSession(Setup setup)
    : with_(std::move(setup))
    , zones_(with_.zone)
    , since_(clock_.now())
    , memory_(with_.memoryPath)
    , retryDelay_(with_.limits) {
    for (const auto& calendar : memory_.calendars()) {
        calendars_.push_back(newCalendar(calendar));
    }
    publish();
    connectToBus();
}

ServiceSession::~ServiceSession() {
    g_cancellable_cancel(cancellable_.get());
}

void ServiceSession::connectToBus() {
    retryTimer_.stop();
    cancellable_.reset(g_cancellable_new());
    answerTimer_.start(with_.limits.answer, [this] { loseService(Service::Unreachable); });
    g_bus_get(G_BUS_TYPE_SESSION, cancellable_.get(), finishCall,
              pendingCall([this, cancellable = newReference(cancellable_.get()).release()](
                              GObject*, GAsyncResult* result) {
                  const ObjectPointer<GCancellable> owner(cancellable);
                  CallError error;
                  const ObjectPointer<GDBusConnection> bus(g_bus_get_finish(result, error.slot()));
                  if (g_cancellable_is_cancelled(cancellable) != FALSE) {
                      return;
                  }
                  if (bus) {
                      busCame(bus.get());
                  } else {
                      loseService(Service::NoSessionBus);
                  }
              }));
}

void ServiceSession::busCame(GDBusConnection* bus) {
    // A bus that goes away must not take the program along.
    g_dbus_connection_set_exit_on_close(bus, FALSE);
    bus_ = newReference(bus);
    busHandlers_.emplace_back(
        bus, "closed", G_CALLBACK(+[](GDBusConnection*, gboolean, GError*, gpointer data) {
            static_cast<ServiceSession*>(data)->loseService(Service::NoSessionBus);
        }),
        this);
    connectToRegistry();
}

void ServiceSession::connectToRegistry() {
    e_source_registry_new(
        cancellable_.get(), finishCall,
        pendingCall([this, cancellable = newReference(cancellable_.get()).release()](
                        GObject*, GAsyncResult* result) {
            const ObjectPointer<GCancellable> owner(cancellable);
            CallError error;
            ObjectPointer<ESourceRegistry> registry(
                e_source_registry_new_finish(result, error.slot()));
            if (g_cancellable_is_cancelled(cancellable) != FALSE) {
                return;
            }
            if (registry) {
                registryCame(std::move(registry));
            } else {
                serviceIsGone();
            }
        }));
}

void ServiceSession::registryCame(ObjectPointer<ESourceRegistry> registry) {
    if (!hasSources(registry.get())) {
        serviceIsGone();
        return;
    }
    answerTimer_.stop();
    retryDelay_.succeeded();
    registry_ = std::move(registry);
    listed_.clear();
    settlingTimer_.start(with_.limits.settling, [this] {
        if (std::ranges::any_of(calendars_, [this](const auto& one) { return isLate(*one); })) {
            refreshSources();
        }
    });
    service_ = Service::Running;
    const auto changed = +[](ESourceRegistry*, ESource*, gpointer data) {
        static_cast<ServiceSession*>(data)->sourcesChanged();
    };
    for (const char* signal : {"source-added", "source-changed", "source-removed", "source-enabled",
                               "source-disabled"}) {
        registryHandlers_.emplace_back(registry_.get(), signal, G_CALLBACK(changed), this);
    }
    refreshSources();
}

void ServiceSession::serviceIsGone() {
    g_dbus_connection_call(
        bus_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "ListActivatableNames", nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, cancellable_.get(),
        finishCall,
        pendingCall([this, cancellable = newReference(cancellable_.get()).release()](
                        GObject* bus, GAsyncResult* result) {
            const ObjectPointer<GCancellable> owner(cancellable);
            CallError error;
            GVariant* names =
                g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, error.slot());
            const QByteArray name = names == nullptr ? QByteArray() : registryName(names);
            g_clear_pointer(&names, g_variant_unref);
            if (g_cancellable_is_cancelled(cancellable) != FALSE) {
                return;
            }
            if (name.isEmpty()) {
                loseService(error ? Service::Unreachable : Service::Missing);
            } else {
                tryToStart(name);
            }
        }));
}

void ServiceSession::tryToStart(const QByteArray& name) {
    // What the library says of a failed start does not tell why it failed.
    g_dbus_connection_call(
        bus_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "StartServiceByName", g_variant_new("(su)", name.constData(), 0U), nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, cancellable_.get(), finishCall,
        pendingCall([this, cancellable = newReference(cancellable_.get()).release()](
                        GObject* bus, GAsyncResult* result) {
            const ObjectPointer<GCancellable> owner(cancellable);
            CallError error;
            GVariant* answer =
                g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, error.slot());
            g_clear_pointer(&answer, g_variant_unref);
            if (g_cancellable_is_cancelled(cancellable) == FALSE) {
                loseService(isWithoutProgram(error) ? Service::Missing : Service::Unreachable);
            }
        }));
}

void ServiceSession::loseService(Service service) {
    answerTimer_.stop();
    sourcesTimer_.stop();
    settlingTimer_.stop();
    g_cancellable_cancel(cancellable_.get());
    registryHandlers_.clear();
    busHandlers_.clear();
    registry_.reset();
    bus_.reset();
    if (service_ != service) {
        service_ = service;
        since_ = clock_.now();
    }
    for (const auto& calendar : calendars_) {
        calendar->loseService();
    }
    publishSoon();
    if (service == Service::Missing && memory_.calendars().empty()) {
        // Each attempt would have the bus try to start what is not installed, and log that.
        return;
    }
    retryTimer_.start(retryDelay_.failed(), [this] { connectToBus(); });
}

void ServiceSession::sourcesChanged() {
    if (!sourcesTimer_.isRunning()) {
        sourcesTimer_.start(with_.limits.gathering, [this] { refreshSources(); });
    }
}

void ServiceSession::refreshSources() {
    if (!hasSources(registry_.get())) {
        serviceIsGone();
        return;
    }
    GList* listed = e_source_registry_list_enabled(registry_.get(), E_SOURCE_EXTENSION_CALENDAR);
    std::vector<ESource*> sources;
    for (const GList* item = listed; item != nullptr; item = item->next) {
        auto* source = static_cast<ESource*>(item->data);
        if (isUserCalendar(source)) {
            sources.push_back(source);
        }
    }
    std::ranges::sort(sources, isListedBefore);
    Calendars known = std::exchange(calendars_, {});
    for (ESource* source : sources) {
        auto calendar = std::make_shared<const StoreCalendar>(calendarFrom(source));
        auto followed = takeKnown(known, calendar->calendarIdentifier);
        if (!followed) {
            followed = newCalendar(calendar);
        }
        followed->follow(source, calendar);
        listed_.insert(calendar->calendarIdentifier);
        calendars_.push_back(std::move(followed));
    }
    g_list_free_full(listed, g_object_unref);
    keepLate(known);
    remember();
    publishSoon();
}

void ServiceSession::keepLate(Calendars& known) {
    if (!settlingTimer_.isRunning()) {
        return;
    }
    // The service comes to the bus a moment before the calendars of its accounts do. One that went
    // for that moment would lose its rate.
    for (auto& calendar : known) {
        if (calendar && isLate(*calendar)) {
            calendars_.push_back(std::move(calendar));
        }
    }
}

bool ServiceSession::isLate(const ServiceCalendar& calendar) const {
    return !listed_.contains(calendar.state().calendar->calendarIdentifier);
}

std::unique_ptr<ServiceCalendar> ServiceSession::takeKnown(Calendars& known,
                                                           const QString& identifier) {
    const auto found = std::ranges::find_if(known, [&](const auto& one) {
        return one && one->state().calendar->calendarIdentifier == identifier;
    });
    return found == known.end() ? nullptr : std::move(*found);
}

std::unique_ptr<ServiceCalendar>
ServiceSession::newCalendar(std::shared_ptr<const StoreCalendar> calendar) {
    return std::make_unique<ServiceCalendar>(
        std::move(calendar),
        ServiceCalendar::Surroundings{zones_, clock_, with_.limits, [this] { publishSoon(); }});
}

void ServiceSession::remember() {
    CalendarList present;
    for (const auto& calendar : calendars_) {
        present.push_back(calendar->state().calendar);
    }
    memory_.keep(present);
}

void ServiceSession::publishSoon() {
    if (!publishTimer_.isRunning()) {
        publishTimer_.start(with_.limits.gathering / 2, [this] { publish(); });
    }
}

void ServiceSession::publish() {
    ServicePicture picture{service_, since_, {}};
    for (const auto& calendar : calendars_) {
        picture.calendars.push_back(calendar->state());
    }
    with_.board->hang(std::move(picture));
    with_.changed();
}

} // namespace quillet
