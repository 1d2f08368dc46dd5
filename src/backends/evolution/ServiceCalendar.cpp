#include "backends/evolution/ServiceCalendar.h"

#include "backends/evolution/ServiceAttempt.h"

#include <utility>

namespace quillet {

namespace {

/// Every event, whenever it takes place.
constexpr const char* everything = "#t";

/// With more than this in doubt, reading everything again costs less.
constexpr qsizetype mostDoubtful = 500;

icalcomponent_impl* nativeOf(ICalComponent* component) {
    return static_cast<icalcomponent_impl*>(i_cal_object_get_native(I_CAL_OBJECT(component)));
}

template <typename Visitor>
void forEachNative(const GSList* objects, Visitor visit) {
    for (const GSList* item = objects; item != nullptr; item = item->next) {
        icalcomponent_impl* component = nativeOf(static_cast<ICalComponent*>(item->data));
        if (component != nullptr) {
            visit(*component);
        }
    }
}

ServiceCalendar& self(gpointer data) {
    return *static_cast<ServiceCalendar*>(data);
}

/// What the service itself says; what only tells that nobody answered says nothing.
QString refusalIn(const CallError& error) {
    const bool isOfService =
        error.isOf(E_CLIENT_ERROR) || error.is(G_IO_ERROR, G_IO_ERROR_NOT_FOUND);
    return isOfService ? error.message() : QString();
}

} // namespace

ServiceCalendar::ServiceCalendar(std::shared_ptr<const StoreCalendar> calendar,
                                 const Surroundings& surroundings)
    : with_(surroundings)
    , contents_(calendar, surroundings.zones)
    , retryDelay_(surroundings.limits) {
    state_.calendar = std::move(calendar);
    patienceTimer_.start(with_.limits.patience, [this] {
        state_.isSettled = true;
        with_.changed();
    });
}

ServiceCalendar::~ServiceCalendar() = default;

void ServiceCalendar::follow(ESource* source, std::shared_ptr<const StoreCalendar> calendar) {
    const bool isSame = source_.get() == source && *state_.calendar == *calendar;
    if (isSame && (stage_ != Stage::Idle || retryTimer_.isRunning())) {
        return;
    }
    source_ = newReference(source);
    state_.calendar = calendar;
    contents_.setCalendar(std::move(calendar));
    connect();
}

void ServiceCalendar::loseService() {
    fail();
    retryTimer_.stop();
}

void ServiceCalendar::connect() {
    retryTimer_.stop();
    stage_ = Stage::Connecting;
    attempt_ = std::make_shared<Attempt>();
    expectAnswer();
    // Waiting for the server behind the calendar would only delay what the service holds already.
    constexpr auto withoutWaiting = static_cast<guint32>(-1);
    e_cal_client_connect(
        source_.get(), E_CAL_CLIENT_SOURCE_TYPE_EVENTS, withoutWaiting, attempt_->cancellable.get(),
        finishCall, callOf([this](Attempt* attempt, GObject*, GAsyncResult* result) {
            CallError error;
            EClient* client = e_cal_client_connect_finish(result, error.slot());
            ObjectPointer<ECalClient> owner(client == nullptr ? nullptr : E_CAL_CLIENT(client));
            if (attempt != nullptr && owner) {
                connected(*attempt, std::move(owner));
            } else if (attempt != nullptr) {
                fail(refusalIn(error));
            }
        }));
}

void ServiceCalendar::connected(Attempt& attempt, ObjectPointer<ECalClient> client) {
    attempt.client = std::move(client);
    attempt.clientHandlers.emplace_back(
        attempt.client.get(), "backend-died",
        G_CALLBACK(+[](EClient*, gpointer data) { self(data).fail(); }), this);
    // The changes first, so that none is missed while everything is being read.
    askForView(attempt, &ServiceCalendar::changesCame);
}

void ServiceCalendar::askForView(Attempt& attempt, ViewCame came) {
    expectAnswer();
    e_cal_client_get_view(
        attempt.client.get(), everything, attempt.cancellable.get(), finishCall,
        callOf([this, came](Attempt* present, GObject* client, GAsyncResult* result) {
            CallError error;
            ECalClientView* view = nullptr;
            e_cal_client_get_view_finish(E_CAL_CLIENT(client), result, &view, error.slot());
            ObjectPointer<ECalClientView> owner(view);
            if (present != nullptr && owner) {
                (this->*came)(*present, std::move(owner));
            } else if (present != nullptr) {
                fail();
            }
        }));
}

void ServiceCalendar::changesCame(Attempt& attempt, ObjectPointer<ECalClientView> view) {
    expectAnswer();
    attempt.changes = std::move(view);
    const auto handle = [&](const char* signal, GCallback callback) {
        attempt.changesHandlers.emplace_back(attempt.changes.get(), signal, callback, this);
    };
    const auto changed = +[](ECalClientView*, const GSList* objects, gpointer data) {
        self(data).objectsChanged(objects);
    };
    handle("objects-added", G_CALLBACK(changed));
    handle("objects-modified", G_CALLBACK(changed));
    handle("objects-removed", G_CALLBACK(+[](ECalClientView*, const GSList* gone, gpointer data) {
               self(data).objectsRemoved(gone);
           }));
    // The library's own call for this waits for the answer.
    const QString name = takenText(e_client_dup_bus_name(E_CLIENT(attempt.client.get())));
    g_dbus_connection_call(
        e_cal_client_view_get_connection(attempt.changes.get()), name.toUtf8().constData(),
        e_cal_client_view_get_object_path(attempt.changes.get()),
        "org.gnome.evolution.dataserver.CalendarView", "SetFlags",
        g_variant_new("(u)", static_cast<guint32>(E_CAL_CLIENT_VIEW_FLAGS_NONE)), nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, static_cast<int>(with_.limits.answer.count()),
        attempt.cancellable.get(), finishCall,
        callOf([this](Attempt* present, GObject* bus, GAsyncResult* result) {
            CallError error;
            GVariant* answer =
                g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, error.slot());
            g_clear_pointer(&answer, g_variant_unref);
            if (present != nullptr && error) {
                fail();
            } else if (present != nullptr) {
                startChanges(*present);
            }
        }));
}

void ServiceCalendar::startChanges(Attempt& attempt) {
    CallError error;
    e_cal_client_view_start(attempt.changes.get(), error.slot());
    if (error) {
        fail();
        return;
    }
    askForReading(attempt);
}

void ServiceCalendar::viewCame(Attempt& attempt, ObjectPointer<ECalClientView> view) {
    expectAnswer();
    stage_ = Stage::Reading;
    contents_.beginReading();
    attempt.isComplete = false;
    attempt.hasNewZone = false;
    attempt.viewHandlers.clear();
    attempt.view = std::move(view);
    const auto read = +[](ECalClientView*, const GSList* objects, gpointer data) {
        self(data).objectsRead(objects);
    };
    for (const char* signal : {"objects-added", "objects-modified"}) {
        attempt.viewHandlers.emplace_back(attempt.view.get(), signal, G_CALLBACK(read), this);
    }
    attempt.viewHandlers.emplace_back(
        attempt.view.get(), "complete",
        G_CALLBACK(+[](ECalClientView*, const GError* error, gpointer data) {
            self(data).readingEnded(error);
        }),
        this);
    CallError error;
    e_cal_client_view_start(attempt.view.get(), error.slot());
    if (error) {
        fail();
    }
}

void ServiceCalendar::readingEnded(const GError* error) {
    if (stage_ != Stage::Reading) {
        return;
    }
    if (error != nullptr) {
        fail();
        return;
    }
    const auto attempt = attempt_;
    attempt->isComplete = true;
    endReadingIfComplete(*attempt);
}

void ServiceCalendar::endReadingIfComplete(Attempt& attempt) {
    if (stage_ != Stage::Reading || !attempt.isComplete || attempt.zonesAwaited > 0) {
        return;
    }
    if (attempt.hasNewZone) {
        // Once more, now that the zones are known in which some events were written.
        askForReading(attempt);
        return;
    }
    contents_.endReading();
    attempt.viewHandlers.clear();
    attempt.view.reset();
    becomeLive();
}

void ServiceCalendar::becomeLive() {
    answerTimer_.stop();
    patienceTimer_.stop();
    retryDelay_.succeeded();
    stage_ = Stage::Live;
    state_.isSettled = true;
    state_.contents = contents_.contents();
    state_.problems = contents_.problems();
    setCondition(CalendarState::Condition::Fine);
    probeTimer_.start(with_.limits.probe, [this] { probe(); });
    watchServer(*attempt_);
    // What changed while it was being read.
    noticesCame();
}

void ServiceCalendar::watchServer(Attempt& attempt) {
    // Only what comes from elsewhere can be refreshed.
    if (e_client_check_refresh_supported(E_CLIENT(attempt.client.get())) == FALSE) {
        return;
    }
    attempt.serverWatch = std::make_unique<ServerWatch>(
        source_.get(), attempt.client.get(), attempt.changes.get(), with_.limits,
        [this](ServerWatch::Server server) {
            switch (server) {
            case ServerWatch::Server::Reachable:
                setCondition(CalendarState::Condition::Fine);
                break;
            case ServerWatch::Server::Unreachable:
                setCondition(CalendarState::Condition::ServerUnreachable);
                break;
            case ServerWatch::Server::NeedsPassword:
                setCondition(CalendarState::Condition::NeedsPassword);
                break;
            }
        });
}

gpointer ServiceCalendar::callOf(AttemptCall finish) const {
    return pendingCall([attempt = std::weak_ptr(attempt_),
                        finish = std::move(finish)](GObject* source, GAsyncResult* result) {
        finish(attempt.lock().get(), source, result);
    });
}

void ServiceCalendar::expectAnswer() {
    answerTimer_.start(with_.limits.answer, [this] { fail(); });
}

void ServiceCalendar::fail(const QString& refusal) {
    stage_ = Stage::Idle;
    state_.refusal = refusal;
    attempt_.reset();
    answerTimer_.stop();
    gatheringTimer_.stop();
    probeTimer_.stop();
    patienceTimer_.stop();
    state_.isSettled = true;
    setCondition(CalendarState::Condition::Unreachable);
    retryTimer_.start(retryDelay_.failed(), [this] { connect(); });
}

void ServiceCalendar::setCondition(CalendarState::Condition condition) {
    if (state_.condition != condition) {
        state_.condition = condition;
        state_.since = with_.clock.now();
    }
    with_.changed();
}

void ServiceCalendar::objectsRead(const GSList* objects) {
    const auto attempt = attempt_;
    if (stage_ != Stage::Reading || attempt->isComplete) {
        return;
    }
    forEachNative(objects, [this](icalcomponent_impl& component) { contents_.read(component); });
    askForZones(*attempt);
    expectAnswer();
}

void ServiceCalendar::objectsChanged(const GSList* objects) {
    if (stage_ != Stage::Reading && stage_ != Stage::Live) {
        return;
    }
    const auto attempt = attempt_;
    forEachNative(objects,
                  [this](icalcomponent_impl& component) { contents_.noteChanged(component); });
    askForZones(*attempt);
    if (stage_ == Stage::Live) {
        noticesCame();
    }
}

void ServiceCalendar::objectsRemoved(const GSList* identifiers) {
    for (const GSList* item = identifiers; item != nullptr; item = item->next) {
        const char* uid = e_cal_component_id_get_uid(static_cast<ECalComponentId*>(item->data));
        if (uid != nullptr) {
            contents_.noteRemoved(QString::fromUtf8(uid));
        }
    }
    if (stage_ == Stage::Live) {
        noticesCame();
    }
}

void ServiceCalendar::noticesCame() {
    if (attempt_->zonesAwaited == 0) {
        const auto attempt = attempt_;
        askForDoubtful(*attempt);
    }
    if (!gatheringTimer_.isRunning()) {
        gatheringTimer_.start(with_.limits.gathering, [this] { applyNotices(); });
    }
}

void ServiceCalendar::applyNotices() {
    // An occurrence and the series that it was taken out of show together.
    if (attempt_->zonesAwaited > 0 || !attempt_->uidsAwaited.isEmpty()) {
        return;
    }
    const bool hasChanged = contents_.apply();
    QStringList problems = contents_.problems();
    if (hasChanged || problems != state_.problems) {
        state_.contents = contents_.contents();
        state_.problems = std::move(problems);
        with_.changed();
    }
}

void ServiceCalendar::askForZones(Attempt& attempt) {
    for (const std::string& name : contents_.takeUnknownZones()) {
        ++attempt.zonesAwaited;
        e_cal_client_get_timezone(
            attempt.client.get(), name.c_str(), attempt.cancellable.get(), finishCall,
            callOf([this, name](Attempt* present, GObject* client, GAsyncResult* result) {
                CallError error;
                // Belongs to the client.
                ICalTimezone* zone = nullptr;
                e_cal_client_get_timezone_finish(E_CAL_CLIENT(client), result, &zone, error.slot());
                if (present != nullptr) {
                    zoneCame(*present, name, error ? nullptr : zone);
                }
            }));
    }
}

void ServiceCalendar::zoneCame(Attempt& attempt, const std::string& name, ICalTimezone* zone) {
    --attempt.zonesAwaited;
    const ObjectPointer<ICalComponent> component(
        zone == nullptr ? nullptr : i_cal_timezone_get_component(zone));
    const QString definition =
        component ? takenText(i_cal_component_as_ical_string(component.get())) : QString();
    attempt.hasNewZone = contents_.define(name, definition.toStdString()) || attempt.hasNewZone;
    if (stage_ == Stage::Live) {
        noticesCame();
    } else {
        endReadingIfComplete(attempt);
    }
}

void ServiceCalendar::askForDoubtful(Attempt& attempt) {
    const QSet<QString> doubtful = contents_.takeDoubtful();
    if (doubtful.size() > mostDoubtful) {
        askForReading(attempt);
        return;
    }
    for (const QString& uid : doubtful) {
        if (attempt.uidsAwaited.contains(uid)) {
            attempt.uidsWaiting.insert(uid);
        } else {
            askForUid(attempt, uid);
        }
    }
}

void ServiceCalendar::askForUid(Attempt& attempt, const QString& uid) {
    attempt.uidsAwaited.insert(uid);
    expectAnswer();
    e_cal_client_get_objects_for_uid(
        attempt.client.get(), uid.toUtf8().constData(), attempt.cancellable.get(), finishCall,
        callOf([this, uid](Attempt* present, GObject* client, GAsyncResult* result) {
            CallError error;
            GSList* found = nullptr;
            e_cal_client_get_objects_for_uid_finish(E_CAL_CLIENT(client), result, &found,
                                                    error.slot());
            const bool isAnswer =
                !error || error.is(E_CAL_CLIENT_ERROR, E_CAL_CLIENT_ERROR_OBJECT_NOT_FOUND);
            if (present != nullptr && isAnswer) {
                uidCame(*present, uid, found);
            } else if (present != nullptr) {
                fail();
            }
            g_slist_free_full(found, g_object_unref);
        }));
}

void ServiceCalendar::uidCame(Attempt& attempt, const QString& uid, const GSList* components) {
    attempt.uidsAwaited.remove(uid);
    if (attempt.uidsWaiting.remove(uid)) {
        askForUid(attempt, uid);
        return;
    }
    std::vector<icalcomponent_impl*> natives;
    for (const GSList* item = components; item != nullptr; item = item->next) {
        natives.push_back(
            nativeOf(e_cal_component_get_icalcomponent(static_cast<ECalComponent*>(item->data))));
    }
    contents_.replace(uid, natives);
    askForZones(attempt);
    if (attempt.uidsAwaited.isEmpty()) {
        answerTimer_.stop();
        noticesCame();
    }
}

void ServiceCalendar::probe() {
    const QString name = takenText(e_client_dup_bus_name(E_CLIENT(attempt_->client.get())));
    GDBusConnection* connection = e_cal_client_view_get_connection(attempt_->changes.get());
    g_dbus_connection_call(
        connection, name.toUtf8().constData(), "/", "org.freedesktop.DBus.Peer", "Ping", nullptr,
        nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, static_cast<int>(with_.limits.answer.count()),
        attempt_->cancellable.get(), finishCall,
        callOf([this](Attempt* attempt, GObject* bus, GAsyncResult* result) {
            CallError error;
            GVariant* answer =
                g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, error.slot());
            g_clear_pointer(&answer, g_variant_unref);
            if (attempt != nullptr && error) {
                fail();
            } else if (attempt != nullptr) {
                probeTimer_.start(with_.limits.probe, [this] { probe(); });
            }
        }));
}

} // namespace quillet
