#include "eventdata/EventsController.h"

#include "eventdata/Duration.h"
#include "eventdata/EventFigures.h"
#include "platform/Predicate.h"
#include "platform/Settings.h"

#include <QPointer>

#include <algorithm>
#include <array>
#include <tuple>

namespace quillet {

namespace {

/// In the order in which they are announced.
constexpr std::array durations{
    EventsController::Aggregate::TotalDuration, EventsController::Aggregate::TotalSelectedDuration,
    EventsController::Aggregate::MinDuration,   EventsController::Aggregate::MinSelectedDuration,
    EventsController::Aggregate::MaxDuration,   EventsController::Aggregate::MaxSelectedDuration,
    EventsController::Aggregate::AvgDuration,   EventsController::Aggregate::AvgSelectedDuration};

/// The condition that the wanted calendars meet; one that no calendar meets when none is ticked.
QString conditionForTicked(const ListController<CalendarRecord>& records) {
    QString text;
    for (std::size_t row = 0; row < records.arrangedCount(); ++row) {
        const CalendarRecord& record = records.arranged(row);
        if (record.isSelected) {
            text += text.isEmpty() ? QStringLiteral("(calendarIdentifier == \"")
                                   : QStringLiteral(" OR (calendarIdentifier == \"");
            text += record.calendarIdentifier + QStringLiteral("\")");
        }
    }
    return text.isEmpty() ? QStringLiteral("(calendarIdentifier == \"000\")") : text;
}

} // namespace

EventsController::EventsController(const Collaborators& collaborators)
    : with_(collaborators)
    , minutes_([this] { return minutesOfAll(); })
    , selectedMinutes_([this] { return minutesOfSelected(); })
    , days_([this] { return daysOfPeriod(); })
    , selectedDays_([this] { return daysOfSelected(); }) {}

EventsController::~EventsController() = default;

QString EventsController::backgroundEventFetchQueueLabel() {
    return QStringLiteral("org.quillet.Quillet.backgroundEventFetchQueue");
}

void EventsController::awakeFromNib() {
    settings::allDayEventsNotIncluded.writeIfAbsent(with_.settings);
    settings::isSingleRate.writeIfAbsent(with_.settings);
    settings::isCalendarAccessGranted.writeIfAbsent(with_.settings);
    settings::datesChangedTrigger.writeIfAbsent(with_.settings);
    // A fetch that quitting interrupted must not block this run.
    settings::isProgressIndicatorOn.reset(with_.settings);

    observe(settings::filterStartDate, Refetch::No);
    observe(settings::filterEndDate, Refetch::No);
    for (const SettingKey* key :
         settingGroup(settings::calendars, settings::allDayHours, settings::allDayEventsNotIncluded,
                      settings::isSingleRate, settings::hourlyRate, settings::viewMode)) {
        observe(*key, Refetch::Yes);
    }
    observations_.push_back(settings::isCalendarAccessGranted.observe(with_.settings, [this] {
        setupEventKitManager();
        settingChanged(Refetch::No);
    }));
    const auto refetch = [this] { settingChanged(Refetch::Yes); };
    connect(&with_.eventsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            refetch);
    connect(&with_.eventsArrayController, &ListControllerNotices::selectedObjectsChanged, this,
            [this] { settingChanged(Refetch::No); });
    connect(&with_.calendarsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            refetch);
    observe(settings::datesChangedTrigger, Refetch::Yes);
    connect(&with_.eventKitManager, &EventKitManager::storeChanged, this,
            &EventsController::storeChanged);

    if (settings::isCalendarAccessGranted.read(with_.settings)) {
        setupEventKitManager();
    }
}

void EventsController::observe(const SettingKey& key, Refetch refetch) {
    observations_.push_back(
        key.observe(with_.settings, [this, refetch] { settingChanged(refetch); }));
}

void EventsController::setupEventKitManager() {
    ++storeListeners_;
    updateEvents();
    updateDurationValues();
    updateTotalDays();
    updateTotalSelectedDays();
}

bool EventsController::isFollowing() const {
    return settings::isCalendarAccessGranted.read(with_.settings) &&
           settings::viewMode.read(with_.settings) == 0;
}

void EventsController::settingChanged(Refetch refetch) {
    if (!isFollowing()) {
        // What changes from now on is not to show in figures that nobody has read so far.
        workOutAnnounced();
        return;
    }
    if (refetch == Refetch::Yes) {
        updateEvents();
    }
    updateDurationValues();
    updateTotalDays();
    updateTotalSelectedDays();
}

void EventsController::storeChanged(int announcements) {
    // Each listener hears each announcement. Once one of those calls has started a fetch, the
    // others would be dropped one by one; a thousand squared of them need not be made for that.
    const std::int64_t calls = std::int64_t{announcements} * storeListeners_;
    hasStoreChanged_ = hasStoreChanged_ || isFetching();
    for (std::int64_t call = 0;
         call < calls && !isFetching() && settings::viewMode.read(with_.settings) == 0; ++call) {
        updateEvents();
    }
}

bool EventsController::isFetching() const {
    return settings::isProgressIndicatorOn.read(with_.settings);
}

void EventsController::updateEvents() {
    if (isFetching()) {
        hasDroppedRequest_ = true;
        return;
    }
    settings::isProgressIndicatorOn.write(with_.settings, true);
    Q_EMIT eventsWillChange();
    const CalendarList calendars = calendarsToFetch();
    fetched_ = choiceOf(calendars);
    hasDroppedRequest_ = false;
    hasStoreChanged_ = false;
    with_.backgroundEventFetchQueue.async([self = QPointer(this), &manager = with_.eventKitManager,
                                           &settings = with_.settings, &mainQueue = with_.mainQueue,
                                           calendars, start = fetched_.start, end = fetched_.end] {
        auto fetched = std::make_shared<Fetched>();
        fetched->events = manager.eventsInCalendars(calendars, start, end);
        fetched->isWithoutAllDayEvents = settings::allDayEventsNotIncluded.read(settings);
        if (fetched->isWithoutAllDayEvents) {
            std::erase_if(fetched->events,
                          [](const Event& event) { return event.details->isAllDay; });
        }
        mainQueue.async([self, fetched] {
            if (self) {
                self->publish(std::move(*fetched));
            }
        });
    });
}

EventsController::Choice EventsController::choiceOf(const CalendarList& calendars) const {
    Choice choice{.calendars = {},
                  .start = settings::filterStartDate.read(with_.settings),
                  .end = settings::filterEndDate.read(with_.settings)};
    for (const auto& calendar : calendars) {
        choice.calendars.append(calendar->calendarIdentifier);
    }
    return choice;
}

bool EventsController::isOutdated(bool isWithoutAllDayEvents) const {
    return hasStoreChanged_ ||
           (hasDroppedRequest_ &&
            (isWithoutAllDayEvents != settings::allDayEventsNotIncluded.read(with_.settings) ||
             fetched_ != choiceOf(calendarsToFetch())));
}

CalendarList EventsController::calendarsToFetch() const {
    CalendarList calendars = with_.eventKitManager.eventCalendars();
    const auto wanted = Predicate::parse(conditionForTicked(with_.calendarsArrayController));
    std::erase_if(calendars, [&](const auto& calendar) {
        return !wanted || !wanted->matches([&](const QString& key) {
            return key == u"calendarIdentifier" ? QVariant(calendar->calendarIdentifier)
                                                : QVariant();
        });
    });
    return calendars;
}

void EventsController::publish(Fetched fetched) {
    // Before the rearrangement, whose own request is dropped as well.
    const bool hasMissed = isOutdated(fetched.isWithoutAllDayEvents);
    auto old = with_.eventsArrayController.content();
    // The progress flag is still on while the list rearranges, so that the notice of the
    // rearrangement does not start another fetch.
    with_.eventsArrayController.setContent(std::move(fetched.events));
    Q_EMIT eventsChanged();
    settings::isProgressIndicatorOn.write(with_.settings, false);
    // Freeing a hundred thousand events takes longer than the main thread may be kept busy.
    with_.backgroundEventFetchQueue.async([old = std::move(old)]() mutable { old.reset(); });
    if (hasMissed) {
        Q_EMIT fetchOutdated();
    }
}

void EventsController::updateDurationValues() {
    // Taking a snapshot of the billing mends settings, which is not to wait for a reader.
    std::ignore = with_.billing.current();
    minutes_.expire();
    selectedMinutes_.expire();
    for (const Aggregate name : durations) {
        Q_EMIT aggregateChanged(name);
    }
}

void EventsController::updateTotalDays() {
    days_.expire();
    Q_EMIT aggregateChanged(Aggregate::TotalDays);
}

void EventsController::updateTotalSelectedDays() {
    selectedDays_.expire();
    Q_EMIT aggregateChanged(Aggregate::TotalSelectedDays);
}

MinutesSummary EventsController::minutesOfAll() const {
    const BillingSettings& billing = with_.billing.current();
    const ListController<Event>& list = with_.eventsArrayController;
    MinutesSummary minutes;
    for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
        minutes.add(billableMinutes(list.arranged(row), billing));
    }
    return minutes;
}

MinutesSummary EventsController::minutesOfSelected() const {
    const BillingSettings& billing = with_.billing.current();
    const ListController<Event>& list = with_.eventsArrayController;
    MinutesSummary minutes;
    for (const std::size_t row : list.selectedRows()) {
        minutes.add(billableMinutes(list.arranged(row), billing));
    }
    return minutes;
}

int EventsController::daysOfPeriod() const {
    const auto start = settings::filterStartDate.read(with_.settings);
    const auto end = settings::filterEndDate.read(with_.settings);
    return start && end ? daysCovered(*start, *end, with_.calendar) : 0;
}

int EventsController::daysOfSelected() const {
    const ListController<Event>& list = with_.eventsArrayController;
    if (list.selectedRows().empty()) {
        return 0;
    }
    Instant earliest = Instant::max();
    Instant latest = Instant::min();
    for (const std::size_t row : list.selectedRows()) {
        earliest = std::min(earliest, list.arranged(row).startDate);
        latest = std::max(latest, list.arranged(row).endDate);
    }
    return daysCovered(earliest, latest, with_.calendar);
}

void EventsController::workOutAnnounced() const {
    std::ignore = minutes_.get();
    std::ignore = selectedMinutes_.get();
    std::ignore = days_.get();
    std::ignore = selectedDays_.get();
}

const ListController<Event>::Content& EventsController::events() const {
    return with_.eventsArrayController.content();
}

QVariant EventsController::aggregate(Aggregate name) const {
    const auto duration = [](const LazyValue<MinutesSummary>& minutes, auto figure) {
        const MinutesSummary* known = minutes.get();
        return known ? QVariant(makeDurationFromMinutes((known->*figure)())) : QVariant();
    };
    const auto days = [](const int* known) { return known ? QVariant(*known) : QVariant(); };
    switch (name) {
    case Aggregate::TotalDuration:
        return duration(minutes_, &MinutesSummary::sum);
    case Aggregate::TotalSelectedDuration:
        return duration(selectedMinutes_, &MinutesSummary::sum);
    case Aggregate::MinDuration:
        return duration(minutes_, &MinutesSummary::smallest);
    case Aggregate::MinSelectedDuration:
        return duration(selectedMinutes_, &MinutesSummary::smallest);
    case Aggregate::MaxDuration:
        return duration(minutes_, &MinutesSummary::largest);
    case Aggregate::MaxSelectedDuration:
        return duration(selectedMinutes_, &MinutesSummary::largest);
    case Aggregate::AvgDuration:
        return duration(minutes_, &MinutesSummary::mean);
    case Aggregate::AvgSelectedDuration:
        return duration(selectedMinutes_, &MinutesSummary::mean);
    case Aggregate::TotalDays:
        return days(days_.get());
    case Aggregate::TotalSelectedDays:
        return days(selectedDays_.get());
    }
    return {};
}

} // namespace quillet
