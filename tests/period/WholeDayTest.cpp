#include "period/DateInspectorFixture.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

struct ZoneCase {
    const char* zone;
    int year;
    int month;
    int day;
};

class WholeDayTest : public test::DateInspectorFixture,
                     public testing::WithParamInterface<ZoneCase> {};

} // namespace

/// Days on which the clocks change: 23 or 25 hours, half-hour changes, days without a midnight.
INSTANTIATE_TEST_SUITE_P(
    Zones, WholeDayTest,
    testing::Values(
        ZoneCase{"Europe/Berlin", 2024, 3, 31}, ZoneCase{"Europe/Berlin", 2024, 10, 27},
        ZoneCase{"America/New_York", 2024, 3, 10}, ZoneCase{"America/New_York", 2024, 11, 3},
        ZoneCase{"America/Sao_Paulo", 2018, 11, 4}, ZoneCase{"America/Sao_Paulo", 2018, 2, 17},
        ZoneCase{"America/Santiago", 2024, 9, 8}, ZoneCase{"America/Santiago", 2024, 4, 6},
        ZoneCase{"America/Havana", 2024, 3, 10}, ZoneCase{"America/Havana", 2024, 11, 3},
        ZoneCase{"Africa/Cairo", 2024, 4, 26}, ZoneCase{"Africa/Cairo", 2024, 10, 31},
        ZoneCase{"Africa/Cairo", 2014, 5, 15}, ZoneCase{"Asia/Beirut", 2024, 3, 31},
        ZoneCase{"Asia/Beirut", 2024, 10, 26}, ZoneCase{"America/Asuncion", 2023, 10, 1},
        ZoneCase{"Asia/Amman", 2022, 2, 25}, ZoneCase{"Asia/Tehran", 2022, 3, 22},
        ZoneCase{"Australia/Lord_Howe", 2024, 4, 7}, ZoneCase{"Australia/Lord_Howe", 2024, 10, 6}));

TEST_P(WholeDayTest, ADayIsOneDayAndItsMonthIsItsMonth) {
    const ZoneCase& zone = GetParam();
    useZone(zone.zone, "en_GB");
    const Instant changeDay = local(zone.year, zone.month, zone.day);
    char date[16];
    (void)std::snprintf(date, sizeof date, "%04d-%02d-%02d", zone.year, zone.month, zone.day);

    choose(PeriodKind::Day, changeDay);
    EXPECT_EQ(day(controller->startDate()).substr(0, 10), date);
    EXPECT_EQ(day(controller->endDate()), std::string(date) + " 23:59:59");
    EXPECT_EQ(controller->totalDays(), 1);
    EXPECT_EQ(controller->endDate() + std::chrono::seconds(1),
              gregorian->startOfDay(controller->endDate() + std::chrono::seconds(1)));

    choose(PeriodKind::Day, gregorian->add(changeDay, {.days = -3}));
    for (int steps = 0; steps < 6; ++steps) {
        const Instant end = controller->endDate();
        controller->setQuickDates(PeriodStep::Next);
        EXPECT_EQ(controller->startDate(), end + std::chrono::seconds(1));
        EXPECT_EQ(controller->totalDays(), 1);
    }

    choose(PeriodKind::Month, changeDay);
    EXPECT_EQ(day(controller->startDate()).substr(0, 10), std::string(date).substr(0, 8) + "01");
    EXPECT_EQ(day(controller->endDate()).substr(0, 7), std::string(date).substr(0, 7));
    EXPECT_EQ(day(controller->endDate()).substr(11), "23:59:59");
    const Instant firstOfMonth = controller->startDate();
    controller->setQuickDates(PeriodStep::Next);
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(controller->startDate(), firstOfMonth);
}

} // namespace quillet
