#include "app/Core.h"

#include "support/EventSamples.h"
#include "support/FakeOutside.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

/// A program after its start, with one of two calendars ticked and March shown.
class CoreTest : public testing::Test {
protected:
    CoreTest() {
        settings.setObject("isCalendarAccessGranted", true);
        settings.setObject("quickDatePeriod", 2);
        choose(utc(2024, 3, 1), utc(2024, 3, 31, 23, 59, 59));
        outside.store.storedCalendars = {test::calendarNamed("work"), test::calendarNamed("home")};
        outside.store.storedEvents = {timedEvent(utc(2024, 3, 4, 9), utc(2024, 3, 4, 17)),
                                      timedEvent(utc(2024, 4, 4, 9), utc(2024, 4, 4, 17)),
                                      timedEvent(utc(2024, 4, 5, 9), utc(2024, 4, 5, 17))};
        core.wake();
        core.finishLaunching();
        core.becomeActiveFirst();
        outside.finish();
        core.calendars.setSelected(0, true);
        outside.finish();
    }

    void choose(Instant start, Instant end) {
        settings.setObject("filterStartDate", QVariant::fromValue(start));
        settings.setObject("filterEndDate", QVariant::fromValue(end));
        flipBool(settings, "datesChangedTrigger");
    }
    void chooseApril() { choose(utc(2024, 4, 1), utc(2024, 4, 30, 23, 59, 59)); }
    void chooseMay() { choose(utc(2024, 5, 1), utc(2024, 5, 31, 23, 59, 59)); }
    /// How often the store is asked because of an action, until nothing is left to do.
    template <typename Action>
    [[nodiscard]] int fetchesFor(Action action) {
        const int before = outside.store.queries;
        action();
        outside.finish();
        return outside.store.queries - before;
    }

    test::FakeOutside outside;
    test::MemorySettings& settings = outside.settings;
    Core core{outside.seams()};
};

} // namespace

TEST_F(CoreTest, ShowsTheTickedCalendarInThePeriodAfterItsStart) {
    ASSERT_EQ(core.calendars.arrangedCount(), 2U);
    EXPECT_EQ(core.events.arrangedCount(), 1U);
}

TEST_F(CoreTest, TheFetchOfAStartShowsThatItRuns) {
    test::FakeOutside second;
    second.settings.setObject("isCalendarAccessGranted", true);
    Core started(second.seams());
    started.wake();
    EXPECT_TRUE(started.views.isProgressIndicatorShown());
    second.finish();
    EXPECT_FALSE(started.views.isProgressIndicatorShown());
}

TEST_F(CoreTest, ATickFetchesOnce) {
    EXPECT_EQ(fetchesFor([&] { core.calendars.setSelected(1, true); }), 1);
    EXPECT_EQ(fetchesFor([&] { core.calendars.setSelected(0, false); }), 1);
}

TEST_F(CoreTest, ARateFetchesOnce) {
    EXPECT_EQ(fetchesFor([&] { core.calendars.setRate(0, Decimal::fromInteger(80)); }), 1);
    EXPECT_EQ(fetchesFor([&] { settings.setObject("hourlyRate", 75); }), 1);
}

TEST_F(CoreTest, APickedEndFetchesOnce) {
    EXPECT_EQ(fetchesFor([&] { core.dateInspector.pickEndDate(utc(2024, 4, 4)); }), 1);
    EXPECT_EQ(core.events.arrangedCount(), 2U);
    EXPECT_EQ(fetchesFor([&] { core.dateInspector.pickEndDate(utc(2024, 4, 5)); }), 1);
    EXPECT_EQ(core.events.arrangedCount(), 3U);
}

TEST_F(CoreTest, APickedStartAKindAndAStepFetchOnce) {
    EXPECT_EQ(fetchesFor([&] { core.dateInspector.pickStartDate(utc(2024, 3, 2)); }), 1);
    EXPECT_EQ(fetchesFor([&] { core.dateInspector.choosePeriodKind(PeriodKind::Month); }), 1);
    EXPECT_EQ(fetchesFor([&] { core.dateInspector.setQuickDates(PeriodStep::Next); }), 1);
}

TEST_F(CoreTest, APeriodChosenWhileAFetchRunsIsShownAfterIt) {
    chooseMay();
    chooseApril();
    outside.finish();
    EXPECT_EQ(core.events.arrangedCount(), 2U);
}

TEST_F(CoreTest, SeveralChangesDuringOneFetchAreOneMoreFetch) {
    EXPECT_EQ(fetchesFor([&] {
                  chooseMay();
                  chooseApril();
                  chooseMay();
                  chooseApril();
              }),
              2);
    EXPECT_EQ(core.events.arrangedCount(), 2U);
}

TEST_F(CoreTest, AChangeThatIsTakenBackWhileTheFetchRunsIsNoFetch) {
    EXPECT_EQ(fetchesFor([&] {
                  chooseApril();
                  chooseMay();
                  chooseApril();
              }),
              1);
    EXPECT_EQ(core.events.arrangedCount(), 2U);
}

TEST_F(CoreTest, DatesThatNobodyAskedToFetchWait) {
    EXPECT_EQ(fetchesFor([&] {
                  chooseApril();
                  settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 4, 5)));
              }),
              1);
    EXPECT_EQ(core.events.arrangedCount(), 2U);
}

TEST_F(CoreTest, AFetchThatMissedNothingIsTheOnlyOne) {
    EXPECT_EQ(fetchesFor([&] { chooseApril(); }), 1);
    EXPECT_TRUE(outside.main.tasks.empty());
}

TEST_F(CoreTest, CalendarsTickedWhileAFetchRunsCount) {
    core.calendars.setSelected(0, false);
    core.calendars.setSelected(0, true);
    outside.finish();
    EXPECT_EQ(core.events.arrangedCount(), 1U);
}

TEST_F(CoreTest, ASwitchOfWholeDaysCountsOnceTheStoreWasRead) {
    EXPECT_EQ(fetchesFor([&] {
                  chooseApril();
                  settings.setObject("allDayEventsNotIncluded", true);
              }),
              1)
        << "the fetch had not looked at it before";
    EXPECT_EQ(fetchesFor([&] {
                  chooseMay();
                  ASSERT_TRUE(outside.background.runOne());
                  settings.setObject("allDayEventsNotIncluded", false);
              }),
              2);
}

TEST_F(CoreTest, ARateChangedWhileAFetchRunsFetchesNothing) {
    EXPECT_EQ(fetchesFor([&] {
                  chooseApril();
                  settings.setObject("isSingleRate", true);
              }),
              1);
}

TEST_F(CoreTest, AStoreThatChangesWhileAFetchRunsIsReadAgain) {
    chooseApril();
    ASSERT_TRUE(outside.background.runOne());
    outside.store.storedEvents.pop_back();
    outside.store.observers.notify();
    outside.finish();
    EXPECT_EQ(core.events.arrangedCount(), 1U);
}

} // namespace quillet
