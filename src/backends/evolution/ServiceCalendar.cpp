#include "backends/evolution/ServiceCalendar.h"

#include "backends/evolution/ServiceAttempt.h"

#include <utility>

namespace quillet {

namespace {

/// Every event, whenever it takes place.
constexpr const char* everything = "#t";

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

} // namespace quillet
