#include "eventdata/MissedChanges.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "eventdata/EventsController.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

/// With the real events controller, so that what is missed is what it really drops.
class MissedChangesTest : public testing::Test {
protected:
    MissedChangesTest() {
        settings.setObject("isCalendarAccessGranted", true);
        store.storedCalendars = {test::calendarNamed("work")};
        store.storedEvents = {timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 17)),
                              timedEvent(utc(2024, 4, 4, 9), utc(2024, 4, 4, 17)),
                              timedEvent(utc(2024, 4, 5, 9), utc(2024, 4, 5, 17))};
        tickWork();
        choose(utc(2024, 3, 1), utc(2024, 3, 31, 23, 59, 59));
        missed.awakeFromNib();
        controller.awakeFromNib();
        finish();
    }

    void tickWork() {
        CalendarRecord record;
        record.calendarIdentifier = QStringLiteral("work");
        record.isSelected = true;
        records.setContent(std::vector{record});
    }
    void choose(Instant start, Instant end) {
        settings.setObject("filterStartDate", QVariant::fromValue(start));
        settings.setObject("filterEndDate", QVariant::fromValue(end));
        flipBool(settings, "datesChangedTrigger");
    }
    void chooseApril() { choose(utc(2024, 4, 1), utc(2024, 4, 30, 23, 59, 59)); }
    void chooseMay() { choose(utc(2024, 5, 1), utc(2024, 5, 31, 23, 59, 59)); }
    void finish() {
        while (background.runOne() || main.runOne()) {
        }
    }
    [[nodiscard]] int fetches() const { return store.queries; }

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
    MissedChanges missed{{settings, manager, records, main}};
};

} // namespace

TEST_F(MissedChangesTest, APeriodChosenWhileAFetchRunsIsShownAfterIt) {
    chooseMay();
    chooseApril();
    finish();
    EXPECT_EQ(events.arrangedCount(), 2U);
}

TEST_F(MissedChangesTest, SeveralChangesDuringOneFetchAreOneMoreFetch) {
    const int before = fetches();
    chooseMay();
    chooseApril();
    chooseMay();
    chooseApril();
    finish();
    EXPECT_EQ(fetches() - before, 2);
    EXPECT_EQ(events.arrangedCount(), 2U);
}

TEST_F(MissedChangesTest, AFetchThatMissedNothingIsTheOnlyOne) {
    const int before = fetches();
    chooseApril();
    finish();
    EXPECT_EQ(fetches() - before, 1);
    EXPECT_TRUE(main.tasks.empty());
}

TEST_F(MissedChangesTest, CalendarsTickedWhileAFetchRunsCount) {
    records.setContent(std::vector<CalendarRecord>());
    tickWork();
    finish();
    EXPECT_EQ(events.arrangedCount(), 1U);
}

TEST_F(MissedChangesTest, ASwitchOfWholeDaysWhileAFetchRunsCounts) {
    const int before = fetches();
    chooseApril();
    settings.setObject("allDayEventsNotIncluded", true);
    finish();
    EXPECT_EQ(fetches() - before, 2);
}

TEST_F(MissedChangesTest, ARateChangedWhileAFetchRunsFetchesNothing) {
    const int before = fetches();
    chooseApril();
    settings.setObject("isSingleRate", true);
    finish();
    EXPECT_EQ(fetches() - before, 1);
}

TEST_F(MissedChangesTest, AStoreThatChangesWhileAFetchRunsIsReadAgain) {
    chooseApril();
    ASSERT_TRUE(background.runOne());
    store.storedEvents.pop_back();
    Q_EMIT manager.storeChanged(1);
    finish();
    EXPECT_EQ(events.arrangedCount(), 1U);
}

} // namespace quillet
