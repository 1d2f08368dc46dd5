#include "eventdata/EventsController.h"

#include "eventdata/Duration.h"
#include "eventdata/EventFigures.h"
#include "platform/Predicate.h"
#include "platform/Settings.h"

#include <QPointer>

#include <algorithm>

namespace quillet {

namespace {

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
    , aggregates_(static_cast<std::size_t>(Aggregate::TotalSelectedDays) + 1) {}

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
    for (std::int64_t call = 0;
         call < calls && !settings::isProgressIndicatorOn.read(with_.settings) &&
         settings::viewMode.read(with_.settings) == 0;
         ++call) {
        updateEvents();
    }
}

void EventsController::updateEvents() {
    if (settings::isProgressIndicatorOn.read(with_.settings)) {
        return;
    }
    settings::isProgressIndicatorOn.write(with_.settings, true);
    Q_EMIT eventsWillChange();
    const auto start = settings::filterStartDate.read(with_.settings);
    const auto end = settings::filterEndDate.read(with_.settings);
    with_.backgroundEventFetchQueue.async([self = QPointer(this), &manager = with_.eventKitManager,
                                           &settings = with_.settings, &mainQueue = with_.mainQueue,
                                           calendars = calendarsToFetch(), start, end] {
        EventList events = manager.eventsInCalendars(calendars, start, end);
        if (settings::allDayEventsNotIncluded.read(settings)) {
            std::erase_if(events, [](const Event& event) { return event.details->isAllDay; });
        }
        auto fetched = std::make_shared<EventList>(std::move(events));
        mainQueue.async([self, fetched] {
            if (self) {
                self->publish(std::move(*fetched));
            }
        });
    });
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

void EventsController::publish(EventList events) {
    auto old = with_.eventsArrayController.content();
    // The progress flag is still on while the list rearranges, so that the notice of the
    // rearrangement does not start another fetch.
    with_.eventsArrayController.setContent(std::move(events));
    Q_EMIT eventsChanged();
    settings::isProgressIndicatorOn.write(with_.settings, false);
    // Freeing a hundred thousand events takes longer than the main thread may be kept busy.
    with_.backgroundEventFetchQueue.async([old = std::move(old)]() mutable { old.reset(); });
}

void EventsController::updateDurationValues() {
    const BillingSettings& billing = with_.billing.current();
    const ListController<Event>& list = with_.eventsArrayController;
    MinutesSummary all;
    for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
        all.add(billableMinutes(list.arranged(row), billing));
    }
    MinutesSummary selected;
    for (const std::size_t row : list.selectedRows()) {
        selected.add(billableMinutes(list.arranged(row), billing));
    }
    setAggregate(Aggregate::TotalDuration, makeDurationFromMinutes(all.sum()));
    setAggregate(Aggregate::TotalSelectedDuration, makeDurationFromMinutes(selected.sum()));
    setAggregate(Aggregate::MinDuration, makeDurationFromMinutes(all.smallest()));
    setAggregate(Aggregate::MinSelectedDuration, makeDurationFromMinutes(selected.smallest()));
    setAggregate(Aggregate::MaxDuration, makeDurationFromMinutes(all.largest()));
    setAggregate(Aggregate::MaxSelectedDuration, makeDurationFromMinutes(selected.largest()));
    setAggregate(Aggregate::AvgDuration, makeDurationFromMinutes(all.mean()));
    setAggregate(Aggregate::AvgSelectedDuration, makeDurationFromMinutes(selected.mean()));
}

void EventsController::updateTotalDays() {
    const auto start = settings::filterStartDate.read(with_.settings);
    const auto end = settings::filterEndDate.read(with_.settings);
    setAggregate(Aggregate::TotalDays,
                 start && end ? daysCovered(*start, *end, with_.calendar) : 0);
}

void EventsController::updateTotalSelectedDays() {
    const ListController<Event>& list = with_.eventsArrayController;
    if (list.selectedRows().empty()) {
        setAggregate(Aggregate::TotalSelectedDays, 0);
        return;
    }
    Instant earliest = Instant::max();
    Instant latest = Instant::min();
    for (const std::size_t row : list.selectedRows()) {
        earliest = std::min(earliest, list.arranged(row).startDate);
        latest = std::max(latest, list.arranged(row).endDate);
    }
    setAggregate(Aggregate::TotalSelectedDays, daysCovered(earliest, latest, with_.calendar));
}

const ListController<Event>::Content& EventsController::events() const {
    return with_.eventsArrayController.content();
}

QVariant EventsController::aggregate(Aggregate name) const {
    return aggregates_[static_cast<std::size_t>(name)];
}

void EventsController::setAggregate(Aggregate name, const QVariant& value) {
    aggregates_[static_cast<std::size_t>(name)] = value;
    Q_EMIT aggregateChanged(name);
}

} // namespace quillet
