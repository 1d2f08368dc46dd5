#include "insight/WeekGrid.h"

#include "insight/InsightFixture.h"

namespace quillet {

using test::Place;
using test::textOf;
using test::utc;

TEST(WeekGridTest, HasEveryWeekOfThePeriodInTheLocalesOrder) {
    Place place("Europe/Berlin", "de_DE");
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    const WeekGrid grid = weekGridOf(place.input(), GridRows::Calendars);
    ASSERT_EQ(grid.weeks.size(), 5);
    EXPECT_EQ(grid.weeks[0].days[0].start, place.at(2024, 2, 26));
    EXPECT_FALSE(grid.weeks[0].days[3].isInPeriod);
    EXPECT_TRUE(grid.weeks[0].days[4].isInPeriod);
    EXPECT_EQ(grid.weeks[0].days[4].kind, DayKind::Workday);
    EXPECT_EQ(grid.weeks[0].days[5].kind, DayKind::Weekend);
    EXPECT_EQ(grid.weeks[4].days[6].start, place.at(2024, 3, 31));
    EXPECT_TRUE(grid.weeks[4].rows.empty());
    EXPECT_EQ(textOf(grid.total.cost), "0");
}

TEST(WeekGridTest, CellsAddUpToTheRightAndBelow) {
    Place place;
    place.setPeriod(place.at(2024, 3, 3), place.at(2024, 3, 16));
    place.add(utc(2024, 3, 4, 9), 60, "work");
    place.add(utc(2024, 3, 4, 23), 120, "home");
    place.add(utc(2024, 3, 5, 9), 30, "work");
    place.add(utc(2024, 3, 12, 9), 15, "work");
    const WeekGrid grid = weekGridOf(place.input(), GridRows::Calendars);
    ASSERT_EQ(grid.weeks.size(), 2);
    const GridWeek& week = grid.weeks[0];
    ASSERT_EQ(week.rows.size(), 2);
    EXPECT_EQ(week.rows[0].text, "work");
    EXPECT_EQ(week.rows[0].cells[1].amounts.minutes, 60);
    EXPECT_EQ(week.rows[0].cells[2].amounts.minutes, 30);
    EXPECT_EQ(week.rows[0].sum.minutes, 90);
    EXPECT_EQ(week.rows[1].cells[2].amounts.minutes, 60);
    EXPECT_EQ(week.rows[1].cells[2].events, (std::vector<EventIndex>{1}));
    EXPECT_EQ(week.daySums[1].minutes, 120);
    EXPECT_EQ(week.daySums[2].minutes, 90);
    EXPECT_EQ(week.sum.minutes, 210);
    EXPECT_EQ(textOf(week.sum.cost), "350");
    EXPECT_EQ(grid.weeks[1].rows.size(), 1) << "only what the week has";
    EXPECT_EQ(grid.total.minutes, 225);
}

TEST(WeekGridTest, MarksTheDaysOfTheCalendarOfHolidays) {
    Place place;
    place.setPeriod(place.at(2024, 3, 25), place.at(2024, 4, 1));
    const EventList holidays{test::allDayEvent(utc(2024, 3, 29), utc(2024, 3, 30), "off"),
                             test::timedEvent(utc(2024, 4, 1, 12), utc(2024, 4, 1, 12), "off")};
    const WeekGrid grid = weekGridOf(place.input(), GridRows::Titles, holidays);
    EXPECT_EQ(grid.weeks[0].days[4].kind, DayKind::Workday);
    EXPECT_EQ(grid.weeks[0].days[5].kind, DayKind::Holiday);
    EXPECT_EQ(grid.weeks[0].days[6].kind, DayKind::Weekend);
    EXPECT_EQ(grid.weeks[1].days[1].kind, DayKind::Holiday);
}

TEST(WeekGridTest, CopiesAsRowsWithTabs) {
    Place place;
    place.setPeriod(place.at(2024, 3, 3), place.at(2024, 3, 9));
    place.add(utc(2024, 3, 4, 9), 60, "work", "Plan");
    place.add(utc(2024, 3, 5, 9), 30, "work", "");
    const WeekGrid grid = weekGridOf(place.input(), GridRows::Titles);
    EXPECT_EQ(gridText(grid, GridValue::Time, TimeUnit::Hours, place.formats),
              "\tSunday 3/3/24\tMonday 3/4/24\tTuesday 3/5/24\tWednesday 3/6/24\t"
              "Thursday 3/7/24\tFriday 3/8/24\tSaturday 3/9/24\tTotal\n"
              "Plan\t\t1\t\t\t\t\t\t1\n"
              "(no title)\t\t\t0.5\t\t\t\t\t0.5\n"
              "Total\t\t1\t0.5\t\t\t\t\t1.5\n\nTotal\t1.5");
    const QString money = gridText(grid, GridValue::Money, TimeUnit::Hours, place.formats);
    EXPECT_TRUE(money.endsWith("Total\t\t$100.00\t$50.00\t\t\t\t\t$150.00\n\nTotal\t$150.00"));
}

TEST(WeekGridTest, EveryMinuteIsInOneCell) {
    EXPECT_TRUE(rc::check([] {
        const Place place = test::anyMonth();
        const auto rows = *rc::gen::element(GridRows::Calendars, GridRows::Titles);
        const WeekGrid grid = weekGridOf(place.input(), rows);
        Amounts ofCells;
        Amounts ofDays;
        for (const GridWeek& week : grid.weeks) {
            Amounts ofRows;
            for (const GridRow& row : week.rows) {
                ofRows.add(row.sum.minutes, row.sum.cost);
                for (const GridCell& cell : row.cells) {
                    ofCells.add(cell.amounts.minutes, cell.amounts.cost);
                }
            }
            for (const Amounts& day : week.daySums) {
                ofDays.add(day.minutes, day.cost);
            }
            RC_ASSERT(ofRows.minutes == week.sum.minutes);
        }
        const EventTotals totals = place.totals();
        RC_ASSERT(ofCells.minutes == grid.total.minutes);
        RC_ASSERT(ofDays.minutes == grid.total.minutes);
        RC_ASSERT(Decimal::fromInteger(grid.total.minutes) == totals.sumMinutes());
        RC_ASSERT(textOf(grid.total.cost) == textOf(totals.sumCost()));
        if (!place.events.empty()) {
            RC_ASSERT(textOf(ofCells.cost) == textOf(grid.total.cost));
            RC_ASSERT(textOf(ofDays.cost) == textOf(grid.total.cost));
        }
    }));
}

} // namespace quillet
