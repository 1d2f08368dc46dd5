#include "eventdata/EventsController.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "support/CpuTimer.h"
#include "support/EventSamples.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::allDayEvent;
using test::calendarNamed;
using test::timedEvent;
using test::utc;
using Aggregate = EventsController::Aggregate;

CalendarRecord record(const QString& identifier, bool isSelected) {
    CalendarRecord result;
    result.calendarIdentifier = identifier;
    result.isSelected = isSelected;
    return result;
}

class EventsControllerTest : public testing::Test {
protected:
    EventsControllerTest() {
        settings.setObject("viewMode", 0);
        settings.setObject("isCalendarAccessGranted", true);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        store.storedCalendars = {calendarNamed("work"), calendarNamed("home")};
        store.storedEvents = {timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 17)),
                              timedEvent(utc(2024, 3, 4, 22), utc(2024, 3, 5, 2), "home", "Night"),
                              allDayEvent(utc(2024, 3, 6), utc(2024, 3, 7))};
        records.setContent(std::vector{record("work", true), record("home", true)});
    }

    void wake() {
        controller.awakeFromNib();
        fetch();
    }
    void fetch() {
        background.runAll();
        main.runAll();
        background.runAll();
    }
    QString text(Aggregate name) { return controller.aggregate(name).toString(); }

    test::MemorySettings settings;
    test::FakeEventStore store;
    test::FakeAlerts alerts;
    test::FakeQueue background;
    test::FakeQueue main;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    BillingSettingsSource billing{settings, calendar};
    EventKitManager manager{store, settings, alerts, main};
    ListController<Event> events{eventIdentityHash, isSameEvent};
    ListController<CalendarRecord> records;
    EventsController controller{
        {manager, settings, billing, calendar, events, records, background, main}};
};

} // namespace

TEST_F(EventsControllerTest, WritesItsFirstRunValuesAndNoOthers) {
    test::MemorySettings fresh;
    BillingSettingsSource freshBilling(fresh, calendar);
    EventsController first(
        {manager, fresh, freshBilling, calendar, events, records, background, main});
    first.awakeFromNib();
    EXPECT_EQ(fresh.keys(),
              (QStringList{"allDayEventsNotIncluded", "datesChangedTrigger",
                           "isCalendarAccessGranted", "isProgressIndicatorOn", "isSingleRate"}));
    EXPECT_EQ(fresh.object("isSingleRate"), QVariant(true));
    EXPECT_EQ(fresh.object("allDayEventsNotIncluded"), QVariant(false));
    EXPECT_EQ(fresh.object("isCalendarAccessGranted"), QVariant(false));
    EXPECT_EQ(fresh.object("datesChangedTrigger"), QVariant(false));
}

TEST_F(EventsControllerTest, AFetchInterruptedByQuittingDoesNotBlockTheNextRun) {
    settings.setObject("isProgressIndicatorOn", true);
    wake();
    EXPECT_EQ(events.arrangedCount(), 3U);
}

TEST_F(EventsControllerTest, FetchesTheTickedCalendarsForThePeriodAsStored) {
    records.setContent(std::vector{record("work", false), record("home", true)});
    wake();
    ASSERT_EQ(events.arrangedCount(), 1U);
    EXPECT_EQ(events.arranged(0).details->title, QStringLiteral("Night"));
    EXPECT_EQ(store.lastTo, utc(2024, 3, 31, 23, 59, 59));
}

TEST_F(EventsControllerTest, WithNoCalendarTickedNothingIsFetchedButTheDaysStillCount) {
    records.setContent(std::vector{record("work", false)});
    wake();
    EXPECT_EQ(store.queries, 0);
    EXPECT_EQ(events.arrangedCount(), 0U);
    for (const Aggregate name : {Aggregate::TotalDuration, Aggregate::MinDuration,
                                 Aggregate::MaxDuration, Aggregate::AvgDuration}) {
        EXPECT_EQ(text(name), QStringLiteral("0h"));
    }
    EXPECT_EQ(controller.aggregate(Aggregate::TotalDays), QVariant(31));
}

TEST_F(EventsControllerTest, SumsUpAllAndSelectedEvents) {
    wake();
    EXPECT_EQ(text(Aggregate::TotalDuration), QStringLiteral("36h"));
    EXPECT_EQ(text(Aggregate::MinDuration), QStringLiteral("4h"));
    EXPECT_EQ(text(Aggregate::MaxDuration), QStringLiteral("24h"));
    EXPECT_EQ(text(Aggregate::AvgDuration), QStringLiteral("12h"));
    EXPECT_EQ(text(Aggregate::TotalSelectedDuration), QStringLiteral("0h"));
    events.setSelectedRows({0, 1});
    EXPECT_EQ(text(Aggregate::TotalSelectedDuration), QStringLiteral("12h"));
    EXPECT_EQ(text(Aggregate::AvgSelectedDuration), QStringLiteral("6h"));
    events.setSelectedRows({0});
    EXPECT_EQ(text(Aggregate::MinSelectedDuration), QStringLiteral("8h"));
    EXPECT_EQ(text(Aggregate::MaxSelectedDuration), QStringLiteral("8h"));
}

TEST_F(EventsControllerTest, CountsTheDaysOfTheSelection) {
    wake();
    EXPECT_EQ(controller.aggregate(Aggregate::TotalSelectedDays), QVariant(0));
    events.setSelectedRows({0});
    EXPECT_EQ(controller.aggregate(Aggregate::TotalSelectedDays), QVariant(1));
    events.setSelectedRows({1});
    EXPECT_EQ(controller.aggregate(Aggregate::TotalSelectedDays), QVariant(2));
    events.setSelectedRows({2});
    EXPECT_EQ(controller.aggregate(Aggregate::TotalSelectedDays), QVariant(1))
        << "the day at whose midnight it ends does not count";
}

TEST_F(EventsControllerTest, EachSettingThatDecidesWhatIsShownFetches) {
    wake();
    for (const char* key : {"datesChangedTrigger", "calendars", "allDayHours",
                            "allDayEventsNotIncluded", "isSingleRate", "hourlyRate", "viewMode"}) {
        settings.setObject(key, settings.object(key));
        EXPECT_EQ(background.tasks.size(), 1U) << key;
        fetch();
    }
    for (const char* key : {"filterStartDate", "filterEndDate", "isDollarsOn"}) {
        settings.setObject(key, settings.object(key));
        EXPECT_TRUE(background.tasks.empty()) << key;
    }
    Q_EMIT records.arrangedObjectsChanged();
    EXPECT_EQ(background.tasks.size(), 1U);
}

TEST_F(EventsControllerTest, ARequestDuringAFetchIsDropped) {
    wake();
    const int before = store.queries;
    flipBool(settings, "datesChangedTrigger");
    flipBool(settings, "datesChangedTrigger");
    records.setContent(std::vector{record("work", true)});
    EXPECT_EQ(background.tasks.size(), 1U);
    fetch();
    EXPECT_EQ(store.queries, before + 1);
    EXPECT_EQ(events.arrangedCount(), 3U) << "the choice of before the fetch";
}

TEST_F(EventsControllerTest, APeriodChosenDuringAFetchIsFetchedByTheNextTriggerOnly) {
    wake();
    const int before = store.queries;
    flipBool(settings, "datesChangedTrigger");
    settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 6)));
    settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 6, 23, 59, 59)));
    flipBool(settings, "datesChangedTrigger");
    fetch();
    EXPECT_EQ(store.queries, before + 1) << "the dropped request is not made up for";
    EXPECT_EQ(events.arrangedCount(), 3U) << "the period of before the fetch";
    EXPECT_EQ(controller.aggregate(Aggregate::TotalDays), QVariant(1)) << "the new period";
    EXPECT_FALSE(boolForKey(settings, "isProgressIndicatorOn"));
    flipBool(settings, "datesChangedTrigger");
    fetch();
    EXPECT_EQ(store.queries, before + 2);
    EXPECT_EQ(store.lastTo, utc(2024, 3, 6, 23, 59, 59));
    EXPECT_EQ(events.arrangedCount(), 1U);
}

TEST_F(EventsControllerTest, AChangeOfTheAccessFetchesWhicheverWayItGoes) {
    wake();
    int announced = 0;
    QObject::connect(&controller, &EventsController::aggregateChanged, [&] { ++announced; });
    store.status = AuthorizationStatus::Denied;
    settings.setObject("isCalendarAccessGranted", false);
    EXPECT_EQ(background.tasks.size(), 1U);
    EXPECT_EQ(announced, 10);
    fetch();
    EXPECT_EQ(events.arrangedCount(), 0U);
    flipBool(settings, "datesChangedTrigger");
    settings.setObject("allDayHours", 8);
    EXPECT_TRUE(background.tasks.empty()) << "without access settings fetch nothing";
    store.status = AuthorizationStatus::Authorized;
    announced = 0;
    settings.setObject("isCalendarAccessGranted", true);
    EXPECT_EQ(announced, 20) << "as on every change while there is access, and by the new set-up";
    fetch();
    EXPECT_EQ(events.arrangedCount(), 3U);
}

TEST_F(EventsControllerTest, AStoreChangeFetchesWithoutLookingAtTheAccessSetting) {
    manager.becomeActive();
    wake();
    settings.setObject("isCalendarAccessGranted", false);
    fetch();
    store.observers.notify();
    EXPECT_EQ(background.tasks.size(), 1U);
}

TEST_F(EventsControllerTest, EveryAggregateIsAnnouncedInItsOrderAlsoWhenItIsTheSame) {
    wake();
    std::vector<Aggregate> announced;
    QObject::connect(&controller, &EventsController::aggregateChanged,
                     [&](Aggregate name) { announced.push_back(name); });
    settings.setObject("filterEndDate", settings.object("filterEndDate"));
    EXPECT_EQ(announced, (std::vector{Aggregate::TotalDuration, Aggregate::TotalSelectedDuration,
                                      Aggregate::MinDuration, Aggregate::MinSelectedDuration,
                                      Aggregate::MaxDuration, Aggregate::MaxSelectedDuration,
                                      Aggregate::AvgDuration, Aggregate::AvgSelectedDuration,
                                      Aggregate::TotalDays, Aggregate::TotalSelectedDays}));
}

TEST_F(EventsControllerTest, TheProgressFlagIsStillOnWhileTheEventsRearrangeAndOffAfterwards) {
    wake();
    bool isOnDuringPublication = false;
    QObject::connect(&events, &ListControllerNotices::arrangedObjectsChanged, [&] {
        isOnDuringPublication = boolForKey(settings, "isProgressIndicatorOn");
    });
    bool isOnWhenTheyAreAnnounced = false;
    QObject::connect(&controller, &EventsController::eventsChanged, [&] {
        isOnWhenTheyAreAnnounced = boolForKey(settings, "isProgressIndicatorOn");
    });
    controller.updateEvents();
    EXPECT_TRUE(boolForKey(settings, "isProgressIndicatorOn"));
    fetch();
    EXPECT_TRUE(isOnDuringPublication);
    EXPECT_TRUE(isOnWhenTheyAreAnnounced);
    EXPECT_FALSE(boolForKey(settings, "isProgressIndicatorOn"));
    EXPECT_TRUE(background.tasks.empty()) << "publishing started another fetch";
}

TEST_F(EventsControllerTest, ARearrangementWhileIdleFetchesOnceASelectionNever) {
    wake();
    const int before = store.queries;
    events.setFilter("none", [](const Event&) { return false; });
    fetch();
    EXPECT_EQ(store.queries, before + 1);
    events.setFilter({}, {});
    fetch();
    events.setSelectedRows({0});
    fetch();
    EXPECT_EQ(store.queries, before + 2);
}

TEST_F(EventsControllerTest, NewPeriodDatesAloneDoNotFetch) {
    wake();
    const int before = store.queries;
    settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 10, 23, 59, 59)));
    fetch();
    EXPECT_EQ(store.queries, before);
    EXPECT_EQ(controller.aggregate(Aggregate::TotalDays), QVariant(10));
}

TEST_F(EventsControllerTest, LeavingAllDayEventsOutIsReadWhenTheFetchRuns) {
    wake();
    settings.setObject("allDayEventsNotIncluded", true);
    fetch();
    EXPECT_EQ(events.arrangedCount(), 2U);
    flipBool(settings, "datesChangedTrigger");
    settings.setObject("allDayEventsNotIncluded", false);
    fetch();
    EXPECT_EQ(events.arrangedCount(), 3U);
}

TEST_F(EventsControllerTest, InAnotherViewModeNothingIsFetchedNorRecomputed) {
    wake();
    settings.setObject("viewMode", 1);
    fetch();
    const int before = store.queries;
    store.storedEvents.clear();
    manager.becomeActive();
    fetch();
    const int afterActivation = store.queries;
    store.observers.notify();
    settings.setObject("allDayHours", 8);
    fetch();
    EXPECT_EQ(store.queries, afterActivation);
    EXPECT_GE(afterActivation, before);
    EXPECT_EQ(text(Aggregate::MaxDuration), QStringLiteral("24h")) << "recomputed";
}

TEST_F(EventsControllerTest, TheSelectionSurvivesAFetchForEventsThatAreStillThere) {
    wake();
    events.setSelectedRows({1, 2});
    store.storedEvents.erase(store.storedEvents.begin() + 2);
    store.storedEvents.insert(store.storedEvents.begin(),
                              timedEvent(utc(2024, 3, 1, 9), utc(2024, 3, 1, 10), "work", "New"));
    flipBool(settings, "datesChangedTrigger");
    fetch();
    ASSERT_EQ(events.selectedRows(), std::vector<std::size_t>{2});
    EXPECT_EQ(events.selectedObjects().front().details->title, QStringLiteral("Night"));
}

TEST_F(EventsControllerTest, AThousandActivationsLeaveOneStoreChangeCheap) {
    wake();
    for (int activation = 0; activation < 1000; ++activation) {
        manager.becomeActive();
    }
    fetch();
    int announced = 0;
    QObject::connect(&manager, &EventKitManager::storeChanged,
                     [&](int announcements) { announced += announcements; });
    const test::CpuTimer timer;
    store.observers.notify();
    EXPECT_LT(timer.milliseconds(), 50);
    EXPECT_EQ(announced, 1000);
    EXPECT_EQ(background.tasks.size(), 1U);
}

TEST_F(EventsControllerTest, TheFetchQueueIsLabelledAfterTheProgram) {
    EXPECT_TRUE(
        EventsController::backgroundEventFetchQueueLabel().endsWith(".backgroundEventFetchQueue"));
}

TEST_F(EventsControllerTest, FetchesOnARealBackgroundThread) {
    const auto realBackground = makeBackgroundQueue("test");
    const auto realMain = makeMainQueue();
    EventKitManager realManager(store, settings, alerts, *realMain);
    EventsController real(
        {realManager, settings, billing, calendar, events, records, *realBackground, *realMain});
    real.awakeFromNib();
    QElapsedTimer timer;
    timer.start();
    while (boolForKey(settings, "isProgressIndicatorOn") && timer.elapsed() < 10'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    EXPECT_EQ(events.arrangedCount(), 3U);
}

TEST(DaysCoveredTest, WholeDaysCountOverChangesOfTheClock) {
    const IcuCalendarArithmetic berlin("de_DE", "Europe/Berlin", CalendarSystem::Gregorian);
    EXPECT_EQ(daysCovered(utc(2024, 2, 29, 23), utc(2024, 3, 31, 21, 59, 59), berlin), 31);
    EXPECT_EQ(daysCovered(utc(2024, 3, 30, 23), utc(2024, 3, 31, 21, 59, 59), berlin), 1);
    EXPECT_EQ(daysCovered(utc(2024, 10, 26, 22), utc(2024, 10, 27, 22, 59, 59), berlin), 1);
}

} // namespace quillet
