#pragma once

#include "eventdata/BillingSettings.h"
#include "eventdata/CalendarRecord.h"
#include "eventdata/EventAggregates.h"
#include "eventdata/EventKitManager.h"
#include "eventdata/LazyValue.h"
#include "platform/CalendarArithmetic.h"
#include "platform/ListController.h"
#include "platform/SerialQueue.h"
#include "platform/Setting.h"

#include <QObject>
#include <QStringList>

#include <optional>
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
    /// @name Announce figures
    /// Each is worked out when it is read, as of the last announcement.
    /// @{
    void updateDurationValues();
    void updateTotalDays();
    void updateTotalSelectedDays();
    /// @}

    [[nodiscard]] const ListController<Event>::Content& events() const;
    /// A duration text, or a whole number for the two that count days; nothing before the first
    /// announcement.
    [[nodiscard]] QVariant aggregate(Aggregate name) const;

Q_SIGNALS:
    void eventsWillChange();
    void eventsChanged();
    /// The new value is readable.
    void aggregateChanged(EventsController::Aggregate name);
    /// A fetch has ended that was made of something else than what is chosen now, and requests for
    /// that were dropped meanwhile.
    void fetchOutdated();

private:
    enum class Refetch { Yes, No };
    /// What a fetch is made of.
    struct Choice {
        /// Identifiers, in the store's order.
        QStringList calendars;
        std::optional<Instant> start;
        std::optional<Instant> end;

        friend bool operator==(const Choice&, const Choice&) = default;
    };
    struct Fetched {
        EventList events;
        bool isWithoutAllDayEvents = false;
    };

    void observe(const SettingKey& key, Refetch refetch);
    void settingChanged(Refetch refetch);
    void storeChanged(int announcements);
    [[nodiscard]] bool isFollowing() const;
    [[nodiscard]] bool isFetching() const;
    [[nodiscard]] CalendarList calendarsToFetch() const;
    [[nodiscard]] Choice choiceOf(const CalendarList& calendars) const;
    [[nodiscard]] bool isOutdated(bool isWithoutAllDayEvents) const;
    void publish(Fetched fetched);
    [[nodiscard]] MinutesSummary minutesOfAll() const;
    [[nodiscard]] MinutesSummary minutesOfSelected() const;
    [[nodiscard]] int daysOfPeriod() const;
    [[nodiscard]] int daysOfSelected() const;
    void workOutAnnounced() const;

    Collaborators with_;
    int storeListeners_ = 0;
    /// What the fetch that runs, or the last one, is made of.
    Choice fetched_;
    bool hasDroppedRequest_ = false;
    bool hasStoreChanged_ = false;
    LazyValue<MinutesSummary> minutes_;
    LazyValue<MinutesSummary> selectedMinutes_;
    LazyValue<int> days_;
    LazyValue<int> selectedDays_;
    std::vector<Observation> observations_;
};

} // namespace quillet
