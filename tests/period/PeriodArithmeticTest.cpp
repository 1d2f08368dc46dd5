#include "period/PeriodArithmetic.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using std::chrono::seconds;

/// The calendars of one zone and locale.
struct Zone {
    explicit Zone(const char* zone, const char* locale = "en_GB")
        : gregorian(locale, zone, CalendarSystem::Gregorian)
        , current(locale, zone, CalendarSystem::OfLocale) {}

    [[nodiscard]] Instant at(int year, int month, int day, int hour = 0) const {
        return gregorian.instant({year, month, day, hour});
    }

    IcuCalendarArithmetic gregorian;
    IcuCalendarArithmetic current;
    PeriodArithmetic arithmetic{gregorian, current};
};

} // namespace

TEST(PeriodArithmeticTest, MonthsAndYearsGoFromTheirFirstToTheirLastSecond) {
    const Zone zone("Europe/Berlin");
    const Instant date = zone.at(2024, 2, 14, 15);
    EXPECT_EQ(zone.arithmetic.firstSecondOfMonthFromDate(date), zone.at(2024, 2, 1));
    EXPECT_EQ(zone.arithmetic.lastSecondOfMonthFromDate(date), zone.at(2024, 3, 1) - seconds(1));
    EXPECT_EQ(zone.arithmetic.firstSecondOfYearFromDate(date), zone.at(2024, 1, 1));
    EXPECT_EQ(zone.arithmetic.lastSecondOfYearFromDate(date), zone.at(2025, 1, 1) - seconds(1));
}

TEST(PeriodArithmeticTest, TheYearOfItsLastDayIsThatYear) {
    const Zone zone("America/New_York");
    const Instant date = zone.at(2023, 12, 31, 23);
    EXPECT_EQ(zone.arithmetic.firstSecondOfYearFromDate(date), zone.at(2023, 1, 1));
    EXPECT_EQ(zone.arithmetic.lastSecondOfYearFromDate(date), zone.at(2024, 1, 1) - seconds(1));
}

TEST(PeriodArithmeticTest, AWeekHasItsOwnDayAsFirstDayWhereWeeksBeginWithIt) {
    const Zone monday("UTC", "en_GB");
    const Instant date = monday.at(2024, 3, 4);
    EXPECT_EQ(monday.arithmetic.firstSecondOfWeekFromDate(date), date);
    EXPECT_EQ(monday.arithmetic.lastSecondOfWeekFromDate(date),
              monday.at(2024, 3, 11) - seconds(1));
}

TEST(PeriodArithmeticTest, WithWeeksFromSaturdayEveryOtherDayBelongsToTheWeekToCome) {
    const Zone saturday("UTC", "ar_EG");
    for (int day = 2; day <= 8; ++day) {
        // Saturday 2 March 2024; the others count to the next one, the 9th.
        EXPECT_EQ(saturday.arithmetic.firstSecondOfWeekFromDate(saturday.at(2024, 3, day, 12)),
                  saturday.at(2024, 3, day == 2 ? 2 : 9));
    }
}

TEST(PeriodArithmeticTest, ADayWithoutAMidnightBeginsWithItsFirstInstant) {
    const Zone saoPaulo("America/Sao_Paulo");
    const Instant date = saoPaulo.at(2018, 11, 4, 12);
    EXPECT_EQ(saoPaulo.arithmetic.firstSecondOfDayFromDate(date), test::utc(2018, 11, 4, 3));
    EXPECT_EQ(saoPaulo.arithmetic.lastSecondOfDayFromDate(test::utc(2018, 11, 4, 3)),
              test::utc(2018, 11, 5, 2) - seconds(1));
    EXPECT_EQ(saoPaulo.arithmetic.lastSecondOfDayFromDate(saoPaulo.at(2018, 11, 3)),
              test::utc(2018, 11, 4, 3) - seconds(1));
}

TEST(PeriodArithmeticTest, ADayWithTwoMidnightsBeginsWithTheFirst) {
    const Zone havana("America/Havana");
    const Instant date = havana.at(2024, 11, 3, 12);
    EXPECT_EQ(havana.arithmetic.firstSecondOfDayFromDate(date), test::utc(2024, 11, 3, 4));
    EXPECT_EQ(havana.arithmetic.lastSecondOfDayFromDate(test::utc(2024, 11, 3, 4)),
              test::utc(2024, 11, 4, 5) - seconds(1));
}

TEST(PeriodArithmeticTest, ADayIsAddedToTheDateAsItIsGiven) {
    const Zone berlin("Europe/Berlin");
    EXPECT_EQ(berlin.arithmetic.lastSecondOfDayFromDate(berlin.at(2024, 3, 1, 15)),
              berlin.at(2024, 3, 2, 15) - seconds(1));
    EXPECT_EQ(berlin.arithmetic.lastSecondOfDayFromDate(berlin.at(2024, 3, 31)),
              berlin.at(2024, 4, 1) - seconds(1));
}

TEST(PeriodArithmeticTest, CountsWholeDaysOverAChangeOfTheClock) {
    const Zone berlin("Europe/Berlin");
    const auto count = [&](Instant start, Instant end) {
        return berlin.arithmetic.totalDaysFromStartDate(start, end);
    };
    EXPECT_EQ(count(berlin.at(2024, 3, 30), berlin.at(2024, 4, 1)), 3);
    EXPECT_EQ(count(berlin.at(2024, 3, 1), berlin.at(2024, 3, 31)), 31);
    EXPECT_EQ(count(berlin.at(2024, 10, 1), berlin.at(2024, 10, 31)), 31);
    EXPECT_EQ(count(berlin.at(2024, 3, 1), berlin.at(2024, 3, 1)), 1);
    EXPECT_EQ(count(berlin.at(2024, 3, 1, 23), berlin.at(2024, 3, 2, 1)), 2);
}

TEST(PeriodArithmeticTest, AnEndBeforeTheStartCountsAsNoDayOrLess) {
    const Zone berlin("Europe/Berlin");
    EXPECT_EQ(
        berlin.arithmetic.totalDaysFromStartDate(berlin.at(2024, 3, 2), berlin.at(2024, 3, 1)), 0);
    // Half a day is added before the fraction is dropped, so that the count drops toward zero.
    EXPECT_EQ(
        berlin.arithmetic.totalDaysFromStartDate(berlin.at(2024, 3, 4), berlin.at(2024, 3, 1)), -1);
}

TEST(PeriodArithmeticTest, CountsBeyondTheIntegersStopAtTheirBounds) {
    const Zone zone("UTC");
    EXPECT_GT(zone.arithmetic.totalDaysFromStartDate(Instant::min(), Instant::max()), 100'000'000);
    EXPECT_LT(zone.arithmetic.totalDaysFromStartDate(Instant::max(), Instant::min()), -100'000'000);
}

} // namespace quillet
