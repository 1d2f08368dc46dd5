#pragma once

#include "platform/Alert.h"
#include "platform/EventStore.h"
#include "platform/SerialQueue.h"
#include "platform/SettingsStore.h"

#include <QObject>

namespace quillet {

/// The program's single gateway to the calendar store: asks for access, tells when it is granted
/// and when the store changes, and answers which calendars and events there are.
class EventKitManager : public QObject {
    Q_OBJECT

public:
    EventKitManager(EventStore& store, SettingsStore& settings, AlertPresenter& alerts,
                    SerialQueue& mainQueue);
    ~EventKitManager() override;
    Q_DISABLE_COPY_MOVE(EventKitManager)

    /// The program came back to the front: looks at the access anew. Refused access is told to the
    /// user each time; granted access starts one more observation of the store each time.
    void becomeActive();
    /// Asks the user for access unless it is already granted.
    void requestEventCalendarsAccess();
    [[nodiscard]] bool eventCalendarsAccessGranted() const;

    /// Every event calendar in the store's order; none without access.
    [[nodiscard]] CalendarList eventCalendars() const;
    /// The store's events of the calendars that overlap the two dates, which are passed on as they
    /// are. None without access, without a date or without a calendar. Callable from any thread.
    [[nodiscard]] EventList eventsInCalendars(const CalendarList& calendars,
                                              std::optional<Instant> fromStartDate,
                                              std::optional<Instant> toEndDate) const;

Q_SIGNALS:
    void eventCalendarsAccessGrantedChanged();
    /// The user granted access ("EventKitManagerAccessGrantedNotification").
    void accessGranted();
    /// The store changed ("EventKitManagerStoreChangedNotification"). One change is announced once
    /// for each observation of the store; the repetitions come as a number, so that a receiver can
    /// tell at once that all but the first of them ask for nothing new.
    void storeChanged(int announcements);

private:
    void observeStore();
    void storeDidChange();
    void accessWasGranted();

    EventStore& store_;
    SettingsStore& settings_;
    AlertPresenter& alerts_;
    SerialQueue& mainQueue_;
    int storeObservations_ = 0;
    Observation storeObservation_;
};

} // namespace quillet
