#include "period/DateInspectorFixture.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// From which day a newly chosen kind is built, and what a choice leaves of the one before.
class DateInspectorAnchorTest : public test::DateInspectorFixture {};

} // namespace

TEST_F(DateInspectorAnchorTest, APickedStartIsTheDayOfTheNextKind) {
    choose(PeriodKind::Month, local(2024, 3, 4));
    controller->pickStartDate(local(2024, 1, 17));
    controller->choosePeriodKind(PeriodKind::Week);
    EXPECT_EQ(period(), "2024-01-15 00:00:00 - 2024-01-21 23:59:59");
}

TEST_F(DateInspectorAnchorTest, ACustomPeriodsStepsTakeTheDayAlong) {
    const auto dayAfter = [this](PeriodStep step) {
        choose(PeriodKind::Custom, local(2024, 1, 1));
        controller->setStartDate(local(2024, 2, 11));
        controller->setEndDate(local(2024, 2, 20));
        controller->setQuickDates(step);
        return day(controller->selectedDate());
    };
    EXPECT_EQ(dayAfter(PeriodStep::Previous), "2024-02-01 00:00:00");
    EXPECT_EQ(dayAfter(PeriodStep::Current), "2024-03-06 00:00:00");
    EXPECT_EQ(dayAfter(PeriodStep::Next), "2024-02-21 00:00:00");
}

TEST_F(DateInspectorAnchorTest, AMonthAndAYearTakeTheLaterOfTheDayAndTheWeeksReference) {
    choose(PeriodKind::Week, local(2024, 3, 25));
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-04-07 23:59:59");
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-04-01 00:00:00 - 2024-04-30 23:59:59");
    choose(PeriodKind::Week, local(2024, 12, 30));
    controller->setQuickDates(PeriodStep::Next);
    controller->choosePeriodKind(PeriodKind::Year);
    EXPECT_EQ(period(), "2025-01-01 00:00:00 - 2025-12-31 23:59:59");
}

TEST_F(DateInspectorAnchorTest, AWeekFromAPickedStartIsRememberedToo) {
    choose(PeriodKind::Week, local(2024, 3, 4));
    controller->pickStartDate(local(2024, 5, 8));
    EXPECT_EQ(period(), "2024-05-08 00:00:00 - 2024-05-14 23:59:59");
    controller->setSelectedDate(local(2024, 2, 1));
    controller->choosePeriodKind(PeriodKind::Month);
    EXPECT_EQ(period(), "2024-05-01 00:00:00 - 2024-05-31 23:59:59");
}

TEST_F(DateInspectorAnchorTest, AMonthFromAPickedStartLeavesTheWeeksReferenceAlone) {
    choose(PeriodKind::Week, local(2024, 6, 3));
    controller->setQuickDates(PeriodStep::Current);
    EXPECT_EQ(period(), "2024-03-04 00:00:00 - 2024-03-10 23:59:59");
    // The kind written from elsewhere is applied to nothing yet.
    settings.setObject("quickDatePeriod", 2);
    controller->pickStartDate(local(2024, 1, 15));
    EXPECT_EQ(period(), "2024-01-15 00:00:00 - 2024-02-14 23:59:59");
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), "2024-06-01 00:00:00 - 2024-06-30 23:59:59") << "the week of 3 June";
}

TEST_F(DateInspectorAnchorTest, EveryKindButCustomLocksTheEndAgain) {
    for (const PeriodKind kind :
         {PeriodKind::Day, PeriodKind::Week, PeriodKind::Month, PeriodKind::Year}) {
        controller->choosePeriodKind(PeriodKind::Custom);
        EXPECT_TRUE(controller->isCustomDateOn());
        controller->choosePeriodKind(kind);
        EXPECT_FALSE(controller->isCustomDateOn());
    }
}

TEST_F(DateInspectorAnchorTest, APickedEndUnlocksACustomPeriod) {
    controller->choosePeriodKind(PeriodKind::Custom);
    controller->switchEndDateLock();
    ASSERT_FALSE(controller->isCustomDateOn());
    controller->pickEndDate(local(2024, 3, 20));
    EXPECT_TRUE(controller->isCustomDateOn());
    EXPECT_EQ(controller->lockedPeriod(), 17);
    controller->pickStartDate(local(2024, 3, 11));
    EXPECT_EQ(period(), "2024-03-11 00:00:00 - 2024-03-20 23:59:59") << "the end stays";
}

TEST_F(DateInspectorAnchorTest, LabelsTellTheDatesThatAreLeftOfStoredOnesThatCannotBe) {
    const auto launchWith = [this](Instant start, Instant end) {
        settings.setObject("quickDatePeriod", 4);
        settings.setObject("filterStartDate", QVariant::fromValue(start));
        settings.setObject("filterEndDate", QVariant::fromValue(end));
        useZone("UTC", "en_GB");
        return (controller->periodLabelString() + QStringLiteral(": ") +
                controller->dateRangeLabelString())
            .toStdString();
    };
    EXPECT_EQ(launchWith(local(2024, 5, 10), local(2024, 3, 1)),
              "1 Days: March 1, 2024 - March 1, 2024");
    EXPECT_EQ(period(), "2024-03-01 00:00:00 - 2024-03-01 23:59:59");
    EXPECT_EQ(launchWith(local(2010, 1, 1), local(2024, 3, 1)),
              "1460 Days: March 3, 2020 - March 1, 2024");
    EXPECT_EQ(period(), "2020-03-03 00:00:00 - 2024-03-01 23:59:59");
}

TEST_F(DateInspectorAnchorTest, AStartWithoutAccessHasItsControlsDisabled) {
    settings.setObject("isCalendarAccessGranted", false);
    DateInspectorController next({settings, clock, *gregorian, *current, *formats});
    next.awakeFromNib();
    EXPECT_FALSE(next.isInterfaceEnabled());
    settings.setObject("isCalendarAccessGranted", true);
    EXPECT_TRUE(next.isInterfaceEnabled());
}

} // namespace quillet
