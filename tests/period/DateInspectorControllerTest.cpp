#include "period/DateInspectorController.h"

#include "period/DateInspectorFixture.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

class DateInspectorControllerTest : public test::DateInspectorFixture {};

} // namespace

TEST_F(DateInspectorControllerTest, TheFirstLaunchShowsTheCurrentWeek) {
    EXPECT_EQ(period(), "2024-03-04 00:00:00 - 2024-03-10 23:59:59");
    EXPECT_EQ(controller->quickDatePeriodIndex(), 1);
    EXPECT_EQ(day(controller->selectedDate()), "2024-03-04 00:00:00");
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("Week"));
    EXPECT_EQ(controller->dateRangeLabelString(), QStringLiteral("March 4, 2024 - March 10, 2024"));
    EXPECT_EQ(controller->lockedPeriod(), 7);
}

TEST_F(DateInspectorControllerTest, AStartBehindTheEndPullsTheEndToItsDay) {
    controller->setStartDate(local(2024, 5, 1));
    EXPECT_EQ(period(), "2024-05-01 00:00:00 - 2024-05-01 23:59:59");
}

TEST_F(DateInspectorControllerTest, AnEndBeforeTheStartPullsTheStartToItsDay) {
    controller->setEndDate(local(2024, 1, 9));
    EXPECT_EQ(period(), "2024-01-09 00:00:00 - 2024-01-09 23:59:59");
}

TEST_F(DateInspectorControllerTest, APeriodIsAtMost1460Days) {
    controller->setStartDate(local(2020, 3, 1));
    controller->setEndDate(local(2020, 3, 1));
    const Instant kept = gregorian->add(local(2020, 3, 1), {.days = 1459});
    controller->setEndDate(kept);
    EXPECT_EQ(day(controller->startDate()), "2020-03-01 00:00:00");
    controller->setEndDate(gregorian->add(local(2020, 3, 1), {.days = 1461}));
    EXPECT_EQ(day(controller->startDate()), "2020-03-03 00:00:00");
    EXPECT_EQ(controller->totalDays(), 1460);
    controller->setStartDate(local(2010, 1, 1));
    EXPECT_EQ(controller->totalDays(), 1460);
    EXPECT_EQ(day(controller->endDate()), "2013-12-30 23:59:59");
}

TEST_F(DateInspectorControllerTest, AStoredPeriodThatIsTooLongIsNamedAsItIsShown) {
    settings.setObject("quickDatePeriod", static_cast<qint64>(PeriodKind::Custom));
    settings.setObject("filterStartDate", QVariant::fromValue(local(2001, 1, 1)));
    settings.setObject("filterEndDate", QVariant::fromValue(local(2030, 1, 1)));
    useZone("UTC", "en_GB");
    EXPECT_EQ(period(), "2026-01-03 00:00:00 - 2030-01-01 23:59:59");
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("1460 Days"));
    EXPECT_EQ(controller->dateRangeLabelString(),
              QStringLiteral("January 3, 2026 - January 1, 2030"));
}

TEST_F(DateInspectorControllerTest, TheClampEndsForInputsAtAnyTimeOfDay) {
    useZone("Europe/Berlin", "de_DE");
    for (const int hours : {0, 1, 12, 23}) {
        controller->setStartDate(local(2020, 1, 1) + std::chrono::hours(hours));
        controller->setEndDate(local(2030, 7, 1) + std::chrono::hours(hours));
        EXPECT_EQ(controller->totalDays(), 1460);
    }
}

TEST_F(DateInspectorControllerTest, TheWeekOfASundayDependsOnTheFirstWeekdayWithoutWrappingAround) {
    choose(PeriodKind::Week, local(2024, 3, 3));
    EXPECT_EQ(period(), "2024-03-04 00:00:00 - 2024-03-10 23:59:59");
    useZone("UTC", "en_US");
    choose(PeriodKind::Week, local(2024, 3, 3));
    EXPECT_EQ(period(), "2024-03-03 00:00:00 - 2024-03-09 23:59:59");
    useZone("UTC", "ar_EG");
    choose(PeriodKind::Week, local(2024, 3, 3));
    EXPECT_EQ(period(), "2024-03-09 00:00:00 - 2024-03-15 23:59:59");
}

TEST_F(DateInspectorControllerTest, MonthsStepOverTheTurnOfTheYearAndIntoFebruary) {
    choose(PeriodKind::Month, local(2024, 1, 1));
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(period(), "2023-12-01 00:00:00 - 2023-12-31 23:59:59");
    controller->setQuickDates(PeriodStep::Next);
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), "2024-02-01 00:00:00 - 2024-02-29 23:59:59");
    EXPECT_EQ(day(controller->selectedDate()), "2024-02-01 00:00:00");
    controller->setQuickDates(PeriodStep::Current);
    EXPECT_EQ(period(), "2024-03-01 00:00:00 - 2024-03-31 23:59:59");
    EXPECT_EQ(day(controller->selectedDate()), "2024-03-06 00:00:00");
}

TEST_F(DateInspectorControllerTest, DaysAndYearsStepToo) {
    choose(PeriodKind::Day, local(2024, 2, 28));
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), "2024-02-29 00:00:00 - 2024-02-29 23:59:59");
    EXPECT_EQ(controller->dateRangeLabelString(), QStringLiteral("February 29, 2024"));
    choose(PeriodKind::Year, local(2024, 2, 28));
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(period(), "2023-01-01 00:00:00 - 2023-12-31 23:59:59");
}

TEST_F(DateInspectorControllerTest, ACustomPeriodStepsByItsOwnLength) {
    controller->choosePeriodKind(PeriodKind::Custom);
    controller->setStartDate(local(2024, 2, 11));
    controller->setEndDate(local(2024, 2, 20));
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(period(), "2024-02-01 00:00:00 - 2024-02-10 23:59:59");
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), "2024-02-11 00:00:00 - 2024-02-20 23:59:59");
    controller->setQuickDates(PeriodStep::Current);
    EXPECT_EQ(period(), "2024-03-06 00:00:00 - 2024-03-15 23:59:59");
}

TEST_F(DateInspectorControllerTest, ChoosingTheKindLastAppliedDoesNothing) {
    controller->choosePeriodKind(PeriodKind::Month);
    controller->setQuickDates(PeriodStep::Previous);
    const std::string before = period();
    const int flips = triggerFlips();
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), before);
    EXPECT_EQ(triggerFlips(), flips);
}

TEST_F(DateInspectorControllerTest, TheVeryFirstChoiceOfADayActs) {
    controller->choosePeriodKind(PeriodKind::Day);
    EXPECT_EQ(period(), "2024-03-04 00:00:00 - 2024-03-04 23:59:59");
    EXPECT_EQ(triggerFlips(), 1);
}

TEST_F(DateInspectorControllerTest, AMonthComesBackAfterAWeekThatBeganBeforeIt) {
    choose(PeriodKind::Month, local(2024, 3, 1));
    controller->choosePeriodKind(PeriodKind::Week);
    EXPECT_EQ(period(), "2024-02-26 00:00:00 - 2024-03-03 23:59:59");
    controller->setSelectedDate(local(2024, 2, 26));
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-03-01 00:00:00 - 2024-03-31 23:59:59");
    controller->choosePeriodKind(PeriodKind::Year);
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-02-01 00:00:00 - 2024-02-29 23:59:59") << "the reference is spent";
}

TEST_F(DateInspectorControllerTest, AWeekSteppedBackIsStillFollowedByTheMonthItCameFrom) {
    choose(PeriodKind::Week, local(2024, 4, 1));
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(period(), "2024-03-25 00:00:00 - 2024-03-31 23:59:59");
    EXPECT_EQ(day(controller->selectedDate()), "2024-03-25 00:00:00");
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-04-30 23:59:59");
}

TEST_F(DateInspectorControllerTest, AYearComesBackAfterAWeekThatBeganBeforeIt) {
    choose(PeriodKind::Year, local(2025, 5, 5));
    controller->setSelectedDate(local(2025, 1, 1));
    controller->choosePeriodKind(PeriodKind::Week);
    EXPECT_EQ(period(), "2024-12-30 00:00:00 - 2025-01-05 23:59:59");
    controller->setSelectedDate(local(2024, 12, 30));
    controller->choosePeriodKind(PeriodKind::Year);
    EXPECT_EQ(period(), "2025-01-01 00:00:00 - 2025-12-31 23:59:59");
}

TEST_F(DateInspectorControllerTest, ADayForgetsTheWeeksReference) {
    choose(PeriodKind::Month, local(2024, 3, 1));
    controller->choosePeriodKind(PeriodKind::Week);
    controller->setSelectedDate(local(2024, 2, 26));
    controller->choosePeriodKind(PeriodKind::Day);
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-02-01 00:00:00 - 2024-02-29 23:59:59");
}

TEST_F(DateInspectorControllerTest, APickedStartKeepsTheKindsLengthWithoutSnapping) {
    choose(PeriodKind::Week, local(2024, 3, 4));
    controller->pickStartDate(local(2024, 3, 6));
    EXPECT_EQ(period(), "2024-03-06 00:00:00 - 2024-03-12 23:59:59");
    choose(PeriodKind::Month, local(2024, 3, 4));
    controller->pickStartDate(local(2024, 1, 15));
    EXPECT_EQ(period(), "2024-01-15 00:00:00 - 2024-02-14 23:59:59");
    controller->pickStartDate(local(2024, 1, 31));
    EXPECT_EQ(period(), "2024-01-31 00:00:00 - 2024-02-28 23:59:59")
        << "a month from the 31st ends before the last day of February";
    choose(PeriodKind::Year, local(2024, 3, 4));
    controller->pickStartDate(local(2024, 2, 29));
    EXPECT_EQ(period(), "2024-02-29 00:00:00 - 2025-02-27 23:59:59");
    controller->pickStartDate(local(2024, 2, 10));
    EXPECT_EQ(period(), "2024-02-10 00:00:00 - 2025-02-09 23:59:59");
    choose(PeriodKind::Day, local(2024, 3, 4));
    controller->pickStartDate(local(2024, 2, 10));
    EXPECT_EQ(period(), "2024-02-10 00:00:00 - 2024-02-10 23:59:59");
}

TEST_F(DateInspectorControllerTest, APickedEndMakesThePeriodCustomAndEndsOnItsLastSecond) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    const int flips = triggerFlips();
    controller->pickEndDate(local(2024, 3, 12));
    EXPECT_EQ(period(), "2024-03-01 00:00:00 - 2024-03-12 23:59:59");
    EXPECT_EQ(controller->quickDatePeriodIndex(), 4);
    EXPECT_TRUE(controller->isCustomDateOn());
    EXPECT_EQ(controller->lockedPeriod(), 12);
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("12 Days"));
    EXPECT_GT(triggerFlips(), flips);
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-03-01 00:00:00 - 2024-03-31 23:59:59") << "Month acts again";
}

TEST_F(DateInspectorControllerTest, AnEndPickedAt1461DaysMovesTheStart) {
    choose(PeriodKind::Day, local(2020, 3, 1));
    controller->pickEndDate(gregorian->add(local(2020, 3, 1), {.days = 1459}));
    EXPECT_EQ(period(), "2020-03-01 00:00:00 - 2024-02-28 23:59:59") << "exactly 1460 days";
    controller->pickEndDate(gregorian->add(local(2020, 3, 1), {.days = 1460}));
    EXPECT_EQ(period(), "2020-03-02 00:00:00 - 2024-02-29 23:59:59");
}

TEST_F(DateInspectorControllerTest, TheFirstTriggerOfAnActionFindsBothDatesAsTheyStay) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    std::vector<std::string> periods;
    const Observation observation =
        settings.observe("datesChangedTrigger", [&] { periods.push_back(period()); });
    controller->pickEndDate(local(2024, 3, 12));
    ASSERT_FALSE(periods.empty());
    EXPECT_EQ(periods.front(), "2024-03-01 00:00:00 - 2024-03-12 23:59:59");
}

TEST_F(DateInspectorControllerTest, EachActionFlipsTheTriggerOnceAndLast) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    const auto flipsOf = [&](const std::function<void()>& action) {
        const int before = triggerFlips();
        action();
        return triggerFlips() - before;
    };
    const auto expectOneLast = [&](const std::function<void()>& action) {
        const bool wasOn = boolForKey(settings, "datesChangedTrigger");
        EXPECT_EQ(flipsOf(action), 1);
        EXPECT_EQ(settings.writes.back(), QStringLiteral("datesChangedTrigger"));
        EXPECT_NE(boolForKey(settings, "datesChangedTrigger"), wasOn);
    };
    expectOneLast([&] { controller->choosePeriodKind(PeriodKind::Week); });
    expectOneLast([&] { controller->setQuickDates(PeriodStep::Next); });
    expectOneLast([&] { controller->startDateControlClicked(); });
    expectOneLast([&] { controller->endDateControlClicked(); });
    EXPECT_EQ(flipsOf([&] { controller->setStartDate(local(2024, 5, 1)); }), 0);
    EXPECT_EQ(flipsOf([&] { controller->setEndDate(local(2024, 5, 9)); }), 0);
    EXPECT_EQ(flipsOf([&] { controller->setSelectedDate(local(2024, 5, 9)); }), 0);
}

TEST_F(DateInspectorControllerTest, AKindOutsideTheFiveHasNoLabelAndChangesNoDate) {
    for (const qint64 index : {qint64{5}, qint64{-1}}) {
        choose(PeriodKind::Day, local(2024, 3, 4));
        const std::string before = period();
        controller->setQuickDatePeriodIndex(index);
        controller->setQuickDatePeriod();
        controller->setQuickDates(PeriodStep::Next);
        EXPECT_EQ(period(), before);
        EXPECT_EQ(controller->periodLabelString(), QString());
        EXPECT_EQ(controller->dateRangeLabelString().contains(QStringLiteral(" - ")), index > 0);
    }
}

TEST_F(DateInspectorControllerTest, LabelsFollowWritesFromElsewhere) {
    controller->choosePeriodKind(PeriodKind::Custom);
    settings.setObject("filterStartDate", QVariant::fromValue(local(2024, 3, 1)));
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("10 Days"));
    EXPECT_EQ(controller->dateRangeLabelString(), QStringLiteral("March 1, 2024 - March 10, 2024"));
    settings.setObject("quickDatePeriod", 0);
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("Day"));
    EXPECT_EQ(controller->dateRangeLabelString(), QStringLiteral("March 1, 2024"));
}

TEST_F(DateInspectorControllerTest, AKindStoredAsTextCounts) {
    settings.setObject("quickDatePeriod", "3");
    EXPECT_EQ(controller->quickDatePeriodIndex(), 3);
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("Year"));
    settings.setObject("quickDatePeriod", "abc");
    EXPECT_EQ(controller->quickDatePeriodIndex(), 0);
}

TEST_F(DateInspectorControllerTest, StoredDatesBeyondEveryCalendarStillStart) {
    settings.setObject("filterStartDate", QVariant::fromValue(Instant::min()));
    settings.setObject("filterEndDate", QVariant::fromValue(Instant::max()));
    settings.setObject("selectedDate", "yesterday");
    useZone("Europe/Berlin", "en_GB");
    EXPECT_EQ(controller->totalDays(), PeriodArithmetic::longestPeriodDays);
    EXPECT_EQ(day(controller->selectedDate()), "2024-03-04 00:00:00");
}

TEST_F(DateInspectorControllerTest, EachLaunchBeginsWithTheEndLockedAtItsLength) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    controller->pickEndDate(local(2024, 3, 12));
    EXPECT_TRUE(controller->isCustomDateOn());
    useZone("UTC", "en_GB");
    EXPECT_FALSE(controller->isCustomDateOn());
    EXPECT_EQ(controller->lockedPeriod(), 12);
    controller->pickStartDate(local(2024, 4, 1));
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-04-12 23:59:59");
}

TEST_F(DateInspectorControllerTest, ALockedEndMovesWithTheStart) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    controller->pickEndDate(local(2024, 3, 10));
    controller->switchEndDateLock();
    EXPECT_FALSE(controller->isCustomDateOn());
    controller->pickStartDate(local(2024, 4, 1));
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-04-10 23:59:59");
    controller->switchEndDateLock();
    controller->pickStartDate(local(2024, 4, 3));
    EXPECT_EQ(period(), "2024-04-03 00:00:00 - 2024-04-10 23:59:59");
    EXPECT_EQ(controller->lockedPeriod(), 8);
}

TEST_F(DateInspectorControllerTest, TheLockActionItselfFlipsNothing) {
    controller->choosePeriodKind(PeriodKind::Custom);
    const int flips = triggerFlips();
    const bool wasOn = controller->isCustomDateOn();
    controller->toggleEndDateLock();
    EXPECT_EQ(triggerFlips(), flips);
    EXPECT_EQ(controller->isCustomDateOn(), wasOn);
}

TEST_F(DateInspectorControllerTest, TheLockKeepsTheLengthThatItFinds) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    controller->switchEndDateLock();
    EXPECT_TRUE(controller->isCustomDateOn()) << "a quick period's end is locked before";
    EXPECT_EQ(controller->lockedPeriod(), 31);
    controller->switchEndDateLock();
    controller->pickStartDate(local(2024, 4, 1));
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-05-01 23:59:59");
}

TEST_F(DateInspectorControllerTest, TheLockMadeCustomLetsTheFormerKindActAgain) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    controller->switchEndDateLock();
    EXPECT_EQ(controller->quickDatePeriodIndex(), 4);
    controller->setQuickDates(PeriodStep::Next);
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-04-30 23:59:59");
}

TEST_F(DateInspectorControllerTest, ASingleCustomDayReadsAsAPlural) {
    controller->choosePeriodKind(PeriodKind::Custom);
    controller->setEndDate(local(2024, 3, 4));
    EXPECT_EQ(controller->periodLabelString(), QStringLiteral("1 Days"));
}

TEST_F(DateInspectorControllerTest, ThePeriodSurvivesARestart) {
    choose(PeriodKind::Month, local(2024, 1, 4));
    clock.current = utc(2025, 6, 1);
    useZone("UTC", "en_GB");
    EXPECT_EQ(period(), "2024-01-01 00:00:00 - 2024-01-31 23:59:59");
    EXPECT_EQ(controller->quickDatePeriodIndex(), 2);
}

TEST_F(DateInspectorControllerTest, WithoutAccessTheControlsAreDisabledAndThePeriodIsKept) {
    const std::string before = period();
    settings.setObject("isCalendarAccessGranted", false);
    EXPECT_FALSE(controller->isInterfaceEnabled());
    EXPECT_EQ(period(), before);
}

TEST_F(DateInspectorControllerTest, AClockBefore1970StillHasAWeek) {
    settings.remove("filterStartDate");
    settings.remove("filterEndDate");
    settings.remove("selectedDate");
    clock.current = utc(1960, 2, 29, 12);
    useZone("UTC", "en_GB");
    EXPECT_EQ(period(), "1960-02-29 00:00:00 - 1960-03-06 23:59:59");
}

} // namespace quillet
