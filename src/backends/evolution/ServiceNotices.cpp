// The part of a calendar that takes in what the service tells of it.

#include "backends/evolution/ServiceAttempt.h"
#include "backends/evolution/ServiceCalendar.h"

namespace quillet {

namespace {

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

} // namespace

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
