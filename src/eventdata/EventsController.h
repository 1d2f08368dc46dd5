#pragma once

#include "eventdata/BillingSettings.h"
#include "eventdata/CalendarRecord.h"
#include "eventdata/EventAggregates.h"
#include "eventdata/EventKitManager.h"
#include "platform/CalendarArithmetic.h"
#include "platform/ListController.h"
#include "platform/SerialQueue.h"
#include "platform/Setting.h"

#include <QObject>

#include <vector>

namespace quillet {

/// Turns the ticked calendars and the reporting period into the list of events, and keeps the
/// aggregates over all arranged and over the selected ones.
class EventsController : public QObject {
    Q_OBJECT

public:
    /// In the order in which one recomputation announces them.
    enum class Aggregate {
        TotalDuration,
        TotalSelectedDuration,
        MinDuration,
        MinSelectedDuration,
        MaxDuration,
        MaxSelectedDuration,
        AvgDuration,
        AvgSelectedDuration,
        TotalDays,
        TotalSelectedDays,
    };
    Q_ENUM(Aggregate)

    struct Collaborators {
        EventKitManager& eventKitManager;
        SettingsStore& settings;
        BillingSettingsSource& billing;
        /// Gregorian, in the system time zone.
        const CalendarArithmetic& calendar;
        ListController<Event>& eventsArrayController;
        ListController<CalendarRecord>& calendarsArrayController;
        /// Serial, with a thread of its own; see backgroundEventFetchQueueLabel().
        SerialQueue& backgroundEventFetchQueue;
        SerialQueue& mainQueue;
    };

    explicit EventsController(const Collaborators& collaborators);
    ~EventsController() override;
    Q_DISABLE_COPY_MOVE(EventsController)

    [[nodiscard]] static QString backgroundEventFetchQueueLabel();

    void awakeFromNib();
    /// Begins to follow the store, once more for each call, fetches and recomputes.
    void setupEventKitManager();
    /// Fetches, unless a fetch runs: then the request is dropped.
    void updateEvents();
    void updateDurationValues();
    void updateTotalDays();
    void updateTotalSelectedDays();

    [[nodiscard]] const ListController<Event>::Content& events() const;
    /// A duration text, or a whole number for the two that count days.
    [[nodiscard]] QVariant aggregate(Aggregate name) const;

Q_SIGNALS:
    void eventsWillChange();
    void eventsChanged();
    /// The new value is readable.
    void aggregateChanged(EventsController::Aggregate name);

private:
    enum class Refetch { Yes, No };

    void observe(const SettingKey& key, Refetch refetch);
    void settingChanged(Refetch refetch);
    void storeChanged(int announcements);
    [[nodiscard]] bool isFollowing() const;
    [[nodiscard]] CalendarList calendarsToFetch() const;
    void publish(EventList events);
    void setAggregate(Aggregate name, const QVariant& value);

    Collaborators with_;
    int storeListeners_ = 0;
    std::vector<QVariant> aggregates_;
    std::vector<Observation> observations_;
};

} // namespace quillet
