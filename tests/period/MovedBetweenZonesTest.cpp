#include "period/DateInspectorFixture.h"

namespace quillet {

namespace {

using test::utc;

class MovedBetweenZonesTest : public test::DateInspectorFixture {
protected:
    /// Starts the program in one zone after the other.
    void travel(std::initializer_list<const char*> zones) {
        const char* former = *zones.begin();
        for (const char* zone : zones) {
            if (zone != former) {
                useZone(zone, "en_GB", former);
            }
            former = zone;
        }
    }
};

} // namespace

TEST_F(MovedBetweenZonesTest, AMonthIsTheSameMonthThereAndBackAgain) {
    useZone("Europe/Berlin", "en_GB");
    choose(PeriodKind::Month, local(2024, 10, 9));
    const std::string october = "2024-10-01 00:00:00 - 2024-10-31 23:59:59";
    ASSERT_EQ(period(), october);
    travel({"Europe/Berlin", "Europe/London"});
    EXPECT_EQ(period(), october);
    EXPECT_EQ(controller->totalDays(), 31);
    EXPECT_EQ(*dateForKey(settings, "filterStartDate"), utc(2024, 9, 30, 23));
    travel({"Europe/London", "Europe/Berlin"});
    EXPECT_EQ(period(), october);
    EXPECT_EQ(*dateForKey(settings, "filterStartDate"), utc(2024, 9, 30, 22));
}

TEST_F(MovedBetweenZonesTest, EachKindIsItsWholePeriodAgain) {
    struct Case {
        PeriodKind kind;
        const char* period;
    };
    for (const auto& [kind, expected] :
         {Case{PeriodKind::Day, "2024-10-09 00:00:00 - 2024-10-09 23:59:59"},
          Case{PeriodKind::Week, "2024-10-07 00:00:00 - 2024-10-13 23:59:59"},
          Case{PeriodKind::Month, "2024-10-01 00:00:00 - 2024-10-31 23:59:59"},
          Case{PeriodKind::Year, "2024-01-01 00:00:00 - 2024-12-31 23:59:59"}}) {
        useZone("America/Los_Angeles", "en_GB");
        choose(kind, local(2024, 10, 9));
        ASSERT_EQ(period(), expected);
        travel({"America/Los_Angeles", "Pacific/Kiritimati"});
        EXPECT_EQ(period(), expected);
        EXPECT_EQ(day(controller->selectedDate()), "2024-10-09 00:00:00");
        travel({"Pacific/Kiritimati", "America/Havana", "Asia/Kolkata"});
        EXPECT_EQ(period(), expected);
        EXPECT_EQ(day(controller->selectedDate()), "2024-10-09 00:00:00");
    }
}

TEST_F(MovedBetweenZonesTest, ACustomPeriodKeepsItsDaysOnTheWall) {
    useZone("Europe/Berlin", "en_GB");
    choose(PeriodKind::Month, local(2024, 10, 9));
    controller->pickEndDate(local(2024, 11, 12));
    ASSERT_EQ(period(), "2024-10-01 00:00:00 - 2024-11-12 23:59:59");
    travel({"Europe/Berlin", "America/New_York", "Asia/Tokyo"});
    EXPECT_EQ(period(), "2024-10-01 00:00:00 - 2024-11-12 23:59:59");
    EXPECT_EQ(controller->lockedPeriod(), 43);
}

TEST_F(MovedBetweenZonesTest, AMonthThatWasPickedFromADayOnStaysWhole) {
    useZone("Europe/Berlin", "en_GB");
    choose(PeriodKind::Month, local(2024, 10, 9));
    controller->pickStartDate(local(2024, 10, 15));
    ASSERT_EQ(period(), "2024-10-15 00:00:00 - 2024-11-14 23:59:59");
    travel({"Europe/Berlin", "Europe/London", "Europe/Berlin"});
    EXPECT_EQ(period(), "2024-10-15 00:00:00 - 2024-11-14 23:59:59");
}

TEST_F(MovedBetweenZonesTest, TheLongestPeriodStaysAsLong) {
    useZone("Asia/Tokyo", "en_GB");
    controller->setEndDate(local(2026, 12, 31));
    controller->setStartDate(local(2020, 1, 1));
    ASSERT_EQ(controller->totalDays(), PeriodArithmetic::longestPeriodDays);
    const std::string longest = period();
    travel({"Asia/Tokyo", "America/Los_Angeles", "Asia/Tokyo"});
    EXPECT_EQ(period(), longest);
}

TEST_F(MovedBetweenZonesTest, ADayThatBeginsWithoutAMidnightIsThatDay) {
    useZone("America/Havana", "en_GB");
    choose(PeriodKind::Day, local(2024, 3, 10));
    ASSERT_EQ(day(*dateForKey(settings, "filterStartDate")), "2024-03-10 01:00:00");
    travel({"America/Havana", "Europe/Berlin"});
    EXPECT_EQ(period(), "2024-03-10 00:00:00 - 2024-03-10 23:59:59");
    travel({"Europe/Berlin", "America/Havana"});
    EXPECT_EQ(period(), "2024-03-10 01:00:00 - 2024-03-10 23:59:59");
}

TEST_F(MovedBetweenZonesTest, DatesThatBeginNoDayOfTheFormerZoneAreReadAsEver) {
    settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 10, 1, 10)));
    settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 10, 9, 10)));
    settings.setObject("quickDatePeriod", 4);
    useZone("Europe/London", "en_GB", "Europe/Berlin");
    EXPECT_EQ(period(), "2024-10-01 00:00:00 - 2024-10-09 23:59:59");
}

TEST_F(MovedBetweenZonesTest, AChangeThatWasFollowedIsNotFollowedTwice) {
    useZone("Europe/Berlin", "en_GB");
    choose(PeriodKind::Month, local(2024, 10, 9));
    travel({"Europe/Berlin", "America/New_York"});
    useZone("America/New_York", "en_GB", "Europe/Berlin");
    EXPECT_EQ(period(), "2024-10-01 00:00:00 - 2024-10-31 23:59:59");
}

TEST_F(MovedBetweenZonesTest, AChangeWhileTheProgramRunsIsToldOnce) {
    const auto zone = std::make_shared<UserTimeZone>(QTimeZone("Europe/Berlin"));
    const IcuCalendarArithmetic travelling("en_GB", zone, CalendarSystem::Gregorian);
    DateInspectorController inspector({settings, clock, travelling, travelling, *formats});
    inspector.awakeFromNib();
    inspector.choosePeriodKind(PeriodKind::Month);
    const auto berlin = utc(2024, 2, 29, 23);
    ASSERT_EQ(*dateForKey(settings, "filterStartDate"), berlin);
    const int flips = triggerFlips();
    int labels = 0;
    QObject::connect(&inspector, &DateInspectorController::labelsChanged, [&] { ++labels; });

    const ZoneRules& former = zone->rules();
    zone->change(QTimeZone("America/New_York"));
    inspector.followZoneChange(former);
    EXPECT_EQ(inspector.startDate(), utc(2024, 3, 1, 5));
    EXPECT_EQ(inspector.endDate(), utc(2024, 4, 1, 3, 59, 59));
    EXPECT_EQ(triggerFlips(), flips + 1);
    EXPECT_GT(labels, 0);
}

} // namespace quillet
