#include "backends/icu/IcuCalendarArithmetic.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillet {

namespace {

using test::utc;

IcuCalendarArithmetic gregorian(const char* zone, const char* locale = "en_US") {
    return {QString::fromLatin1(locale), QString::fromLatin1(zone), CalendarSystem::Gregorian};
}

} // namespace

TEST(IcuCalendarArithmeticTest, TellsTheFieldsOfALocalTime) {
    const auto calendar = gregorian("Europe/Berlin");
    const DateComponents fields = calendar.components(utc(2024, 3, 1, 12, 34, 56));
    EXPECT_EQ(fields, (DateComponents{2024, 3, 1, 13, 34, 56, 6}));
    EXPECT_EQ(calendar.instant(fields), utc(2024, 3, 1, 12, 34, 56));
}

TEST(IcuCalendarArithmeticTest, ADayBeginsAtItsMidnight) {
    EXPECT_EQ(gregorian("Europe/Berlin").startOfDay(utc(2024, 3, 31, 12)), utc(2024, 3, 30, 23));
    EXPECT_EQ(gregorian("Australia/Lord_Howe").startOfDay(utc(2024, 4, 6, 20)),
              utc(2024, 4, 6, 13));
}

TEST(IcuCalendarArithmeticTest, ADayWithoutAMidnightBeginsAtItsFirstInstant) {
    // Clocks went from 00:00 to 01:00 on these days.
    EXPECT_EQ(gregorian("America/Sao_Paulo").startOfDay(utc(2018, 11, 4, 15)), utc(2018, 11, 4, 3));
    EXPECT_EQ(gregorian("America/Havana").startOfDay(utc(2024, 3, 10, 15)), utc(2024, 3, 10, 5));
    EXPECT_EQ(gregorian("America/Santiago").startOfDay(utc(2024, 9, 8, 15)), utc(2024, 9, 8, 4));
}

TEST(IcuCalendarArithmeticTest, AMidnightThatOccursTwiceIsTheFirst) {
    // In Havana 01:00 became 00:00 on this day.
    EXPECT_EQ(gregorian("America/Havana").startOfDay(utc(2024, 11, 3, 15)), utc(2024, 11, 3, 4));
}

TEST(IcuCalendarArithmeticTest, AddsCalendarUnits) {
    const auto berlin = gregorian("Europe/Berlin");
    EXPECT_EQ(berlin.add(utc(2024, 3, 30, 23), {.days = 1}), utc(2024, 3, 31, 22));
    EXPECT_EQ(berlin.add(utc(2024, 1, 30, 23), {.months = 1}), utc(2024, 2, 28, 23));
    EXPECT_EQ(berlin.add(utc(2024, 2, 28, 23), {.years = -1}), utc(2023, 2, 27, 23));
    EXPECT_EQ(berlin.add(utc(2024, 3, 30, 23), {.days = 1, .seconds = -1}),
              utc(2024, 3, 31, 21, 59, 59));
}

TEST(IcuCalendarArithmeticTest, TheWeekBeginsAsTheLocaleHasIt) {
    EXPECT_EQ(gregorian("UTC", "en_US").firstWeekday(), 1);
    EXPECT_EQ(gregorian("UTC", "de_DE").firstWeekday(), 2);
    EXPECT_EQ(gregorian("UTC", "ar_EG").firstWeekday(), 7);
}

TEST(IcuCalendarArithmeticTest, TheWeekendIsTheLocales) {
    const auto weekend = [](const char* locale) {
        std::vector<int> days;
        const auto calendar = gregorian("UTC", locale);
        for (int weekday = 1; weekday <= 7; ++weekday) {
            if (calendar.isWeekend(weekday)) {
                days.push_back(weekday);
            }
        }
        return days;
    };
    EXPECT_EQ(weekend("en_US"), (std::vector{1, 7}));
    EXPECT_EQ(weekend("ar_EG"), (std::vector{6, 7}));
    EXPECT_EQ(weekend("hi_IN"), (std::vector{1}));
}

TEST(IcuCalendarArithmeticTest, WorksBefore1970AndBeforeTheChangeOfCalendars) {
    const auto calendar = gregorian("UTC");
    EXPECT_EQ(calendar.startOfDay(utc(1969, 12, 31, 23)), utc(1969, 12, 31));
    EXPECT_EQ(calendar.components(utc(1582, 10, 10)).day, 10);
}

TEST(IcuCalendarArithmeticTest, AnotherCalendarSystemHasTheSameDays) {
    const IcuCalendarArithmetic japanese("ja_JP@calendar=japanese", "Asia/Tokyo",
                                         CalendarSystem::OfLocale);
    EXPECT_EQ(japanese.startOfDay(utc(2024, 3, 1, 20)), utc(2024, 3, 1, 15));
    const DateComponents fields = japanese.components(utc(2024, 3, 1, 20));
    EXPECT_EQ(japanese.instant(fields), utc(2024, 3, 1, 20));
}

TEST(IcuCalendarArithmeticTest, AnUnknownZoneCountsAsUtc) {
    EXPECT_EQ(gregorian("Nowhere/Land").startOfDay(utc(2024, 3, 1, 5)), utc(2024, 3, 1));
}

} // namespace quillet
