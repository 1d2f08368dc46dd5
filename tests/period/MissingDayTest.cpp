#include "period/DateInspectorFixture.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

struct Island {
    const char* zone;
    /// The days before and after the one that the island never had.
    std::chrono::year_month_day before;
    std::chrono::year_month_day after;
};

std::string text(std::chrono::sys_days date) {
    const std::chrono::year_month_day fields(date);
    char written[16];
    (void)std::snprintf(written, sizeof written, "%04d-%02u-%02u", static_cast<int>(fields.year()),
                        static_cast<unsigned>(fields.month()), static_cast<unsigned>(fields.day()));
    return written;
}

/// Islands that crossed the date line to the west and so left out a day.
class MissingDayTest : public test::DateInspectorFixture,
                       public testing::WithParamInterface<Island> {
protected:
    void SetUp() override { useZone(GetParam().zone, "en_GB"); }

    [[nodiscard]] Instant localDay(std::chrono::sys_days date) const {
        const std::chrono::year_month_day fields(date);
        return local(static_cast<int>(fields.year()),
                     static_cast<int>(static_cast<unsigned>(fields.month())),
                     static_cast<int>(static_cast<unsigned>(fields.day())));
    }
    [[nodiscard]] static std::string spanOf(std::chrono::sys_days first,
                                            std::chrono::sys_days last) {
        return text(first) + " 00:00:00 - " + text(last) + " 23:59:59";
    }
    std::chrono::sys_days before = GetParam().before;
    std::chrono::sys_days after = GetParam().after;
};

using std::chrono::days;

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Islands, MissingDayTest,
    testing::Values(Island{"Pacific/Apia", std::chrono::year(2011) / 12 / 29,
                           std::chrono::year(2011) / 12 / 31},
                    Island{"Pacific/Fakaofo", std::chrono::year(2011) / 12 / 29,
                           std::chrono::year(2011) / 12 / 31},
                    Island{"Pacific/Kwajalein", std::chrono::year(1993) / 8 / 20,
                           std::chrono::year(1993) / 8 / 22},
                    Island{"Pacific/Kiritimati", std::chrono::year(1994) / 12 / 30,
                           std::chrono::year(1995) / 1 / 1}));

TEST_P(MissingDayTest, DaysStepOverIt) {
    choose(PeriodKind::Day, localDay(before));
    EXPECT_EQ(period(), spanOf(before, before));
    EXPECT_EQ(controller->totalDays(), 1);
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), spanOf(after, after));
    EXPECT_EQ(day(controller->selectedDate()), text(after) + " 00:00:00");
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(period(), spanOf(before, before));
}

TEST_P(MissingDayTest, ItsMonthAndYearAreWhole) {
    const std::chrono::year_month_day date(after);
    const std::chrono::sys_days firstOfMonth = date.year() / date.month() / 1;
    const std::chrono::sys_days lastOfMonth = date.year() / date.month() / std::chrono::last;
    choose(PeriodKind::Month, localDay(after));
    EXPECT_EQ(period(), spanOf(firstOfMonth, lastOfMonth));
    choose(PeriodKind::Year, localDay(after));
    EXPECT_EQ(period(), spanOf(date.year() / 1 / 1, std::chrono::sys_days(date.year() / 12 / 31)));
}

TEST_P(MissingDayTest, MonthsStepThroughIt) {
    const std::chrono::year_month_day date(before);
    const auto month = date.year() / date.month();
    choose(PeriodKind::Month, localDay((month + std::chrono::months(1)) / 5));
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(day(controller->startDate()), text(std::chrono::sys_days(month / 1)) + " 00:00:00");
    EXPECT_EQ(controller->endDate() + std::chrono::seconds(1),
              localDay((month + std::chrono::months(1)) / 1));
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(day(controller->startDate()),
              text(std::chrono::sys_days((month + std::chrono::months(1)) / 1)) + " 00:00:00");
}

TEST_P(MissingDayTest, ItsWeekKeepsItsFirstAndLastDay) {
    for (const char* locale : {"en_GB", "en_US", "ar_EG"}) {
        useZone(GetParam().zone, locale);
        const int shift = current->firstWeekday() -
                          static_cast<int>(std::chrono::weekday(after).c_encoding()) - 1;
        const std::chrono::sys_days first = after + days(shift);
        choose(PeriodKind::Week, localDay(after));
        EXPECT_EQ(period(), spanOf(first, first + days(6))) << locale;
        controller->setQuickDates(PeriodStep::Next);
        EXPECT_EQ(day(controller->startDate()), text(first + days(7)) + " 00:00:00") << locale;
        controller->setQuickDates(PeriodStep::Previous);
        EXPECT_EQ(period(), spanOf(first, first + days(6))) << locale;
    }
}

TEST_P(MissingDayTest, ACustomPeriodKeepsItsDaysWhenItStepsOverIt) {
    choose(PeriodKind::Custom, localDay(after));
    controller->setStartDate(localDay(after));
    controller->setEndDate(localDay(after + days(9)));
    EXPECT_EQ(controller->totalDays(), 10);
    controller->setQuickDates(PeriodStep::Previous);
    EXPECT_EQ(period(), spanOf(before - days(9), before));
    EXPECT_EQ(controller->totalDays(), 10);
    controller->setQuickDates(PeriodStep::Next);
    EXPECT_EQ(period(), spanOf(after, after + days(9)));
}

TEST_P(MissingDayTest, APickedStartKeepsTheEndOfItsWeekAndMonth) {
    choose(PeriodKind::Week, localDay(before));
    controller->pickStartDate(localDay(before - days(3)));
    EXPECT_EQ(period(), spanOf(before - days(3), before + days(3)));
    choose(PeriodKind::Month, localDay(before));
    controller->pickStartDate(localDay(before));
    EXPECT_EQ(day(controller->startDate()), text(before) + " 00:00:00");
}

TEST_P(MissingDayTest, EveryDayAroundItCanBeReachedFromBothSides) {
    choose(PeriodKind::Day, localDay(before - days(20)));
    std::vector<std::string> seen;
    for (int steps = 0; steps < 40; ++steps) {
        seen.push_back(period());
        controller->setQuickDates(PeriodStep::Next);
    }
    for (int steps = 39; steps >= 0; --steps) {
        controller->setQuickDates(PeriodStep::Previous);
        EXPECT_EQ(period(), seen[static_cast<std::size_t>(steps)]);
    }
    for (int index = 0; index < 40; ++index) {
        const auto date = before - days(20) + days(index > 20 ? index + 1 : index);
        EXPECT_EQ(seen[static_cast<std::size_t>(index)], spanOf(date, date));
    }
}

} // namespace quillet
