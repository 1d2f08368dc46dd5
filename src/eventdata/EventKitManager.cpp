#include "eventdata/EventKitManager.h"

#include "platform/Logging.h"
#include "platform/Settings.h"
#include "texts/Localized.h"

#include <QPointer>

namespace quillet {

EventKitManager::EventKitManager(EventStore& store, SettingsStore& settings, AlertPresenter& alerts,
                                 SerialQueue& mainQueue)
    : store_(store)
    , settings_(settings)
    , alerts_(alerts)
    , mainQueue_(mainQueue) {}

EventKitManager::~EventKitManager() = default;

void EventKitManager::becomeActive() {
    switch (store_.authorizationStatus()) {
    case AuthorizationStatus::NotDetermined:
        requestEventCalendarsAccess();
        break;
    case AuthorizationStatus::Restricted:
    case AuthorizationStatus::Denied:
        settings::isCalendarAccessGranted.write(settings_, false);
        (void)alerts_.runModal(
            {.style = AlertStyle::Informational,
             .messageText = localized("Access Denied"),
             .informativeText = localized("Quillet doesn't have access to your Calendars."),
             .buttonTitles = {localized("OK")}});
        break;
    case AuthorizationStatus::Authorized:
        settings::isCalendarAccessGranted.write(settings_, true);
        observeStore();
        break;
    }
}

void EventKitManager::requestEventCalendarsAccess() {
    if (eventCalendarsAccessGranted()) {
        return;
    }
    store_.requestAccess([self = QPointer(this), &mainQueue = mainQueue_](
                             bool isGranted, const std::optional<QString>& error) {
        if (isGranted) {
            mainQueue.async([self] {
                if (self) {
                    self->accessWasGranted();
                }
            });
        }
        if (error) {
            qCWarning(quilletLog).noquote() << "failure requesting Events access: " + *error;
        }
    });
}

bool EventKitManager::eventCalendarsAccessGranted() const {
    return store_.authorizationStatus() == AuthorizationStatus::Authorized;
}

CalendarList EventKitManager::eventCalendars() const {
    return eventCalendarsAccessGranted() ? store_.calendars() : CalendarList();
}

EventList EventKitManager::eventsInCalendars(const CalendarList& calendars,
                                             std::optional<Instant> fromStartDate,
                                             std::optional<Instant> toEndDate) const {
    if (calendars.empty() || !fromStartDate || !toEndDate || !eventCalendarsAccessGranted()) {
        return {};
    }
    return store_.events(calendars, *fromStartDate, *toEndDate);
}

void EventKitManager::accessWasGranted() {
    observeStore();
    Q_EMIT eventCalendarsAccessGrantedChanged();
    Q_EMIT accessGranted();
    settings::isCalendarAccessGranted.write(settings_, true);
}

void EventKitManager::observeStore() {
    if (storeObservations_++ == 0) {
        storeObservation_ = store_.observeChanges([this] { storeDidChange(); });
    }
}

void EventKitManager::storeDidChange() {
    Q_EMIT storeChanged(storeObservations_);
}

} // namespace quillet
