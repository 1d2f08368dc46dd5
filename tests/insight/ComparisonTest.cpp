#include "insight/Comparison.h"

#include "insight/InsightFixture.h"

namespace quillet {

namespace {

using test::Place;
using test::textOf;
using test::utc;

ComparedStretches stretchesOf(const Place& place, std::optional<Instant> now = std::nullopt) {
    return comparedStretches(place.billing, now, place.calendar);
}

} // namespace

TEST(ComparisonTest, BeforeAMonthIsTheMonthBeforeAndBeforeAYearTheYearBefore) {
    Place place("Europe/Berlin");
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    EXPECT_EQ(stretchesOf(place).before.start, place.at(2024, 2, 1));
    EXPECT_EQ(stretchesOf(place).before.end, place.at(2024, 3, 1));
    EXPECT_EQ(stretchesOf(place).current.end, place.at(2024, 4, 1));
    place.setPeriod(place.at(2024, 1, 1), place.at(2024, 12, 31));
    EXPECT_EQ(stretchesOf(place).before.start, place.at(2023, 1, 1));
    place.setPeriod(place.at(2024, 2, 15), place.at(2024, 3, 14));
    EXPECT_EQ(stretchesOf(place).before.start, place.at(2024, 1, 15));
}

TEST(ComparisonTest, BeforeOtherPeriodsAreAsManyDays) {
    Place place("Europe/Berlin");
    place.setPeriod(place.at(2024, 4, 1), place.at(2024, 4, 7));
    EXPECT_EQ(stretchesOf(place).before.start, place.at(2024, 3, 25)) << "over a clock change";
    EXPECT_EQ(stretchesOf(place).before.end, place.at(2024, 4, 1));
    place.setPeriod(place.at(2024, 3, 31), place.at(2024, 3, 31));
    EXPECT_EQ(stretchesOf(place).before.start, place.at(2024, 3, 30));
}

TEST(ComparisonTest, APeriodThatRunsIsComparedUpToToday) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    const auto running = stretchesOf(place, utc(2024, 3, 12, 15));
    EXPECT_TRUE(running.isPartial);
    EXPECT_EQ(running.current.end, utc(2024, 3, 13));
    EXPECT_EQ(running.before.start, utc(2024, 2, 1));
    EXPECT_EQ(running.before.end, utc(2024, 2, 13));
    EXPECT_EQ(stretchesOf(place, utc(2024, 3, 30, 1)).before.end, utc(2024, 3, 1))
        << "February has no 30th";
    EXPECT_FALSE(stretchesOf(place, utc(2024, 3, 31, 1)).isPartial);
    EXPECT_FALSE(stretchesOf(place, utc(2024, 4, 1)).isPartial);
}

TEST(ComparisonTest, SaysWhatIsMoreAndOnWhat) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.add(utc(2024, 3, 4, 9), 450);
    EventList before{test::timedEvent(utc(2024, 2, 6, 9), utc(2024, 2, 6, 10)),
                     test::timedEvent(utc(2024, 2, 29, 23), utc(2024, 3, 1, 1))};
    const auto stretches = stretchesOf(place);
    const Comparison more = comparisonOf(place.events, before, place.billing, stretches);
    EXPECT_EQ(more.before.minutes, 120);
    EXPECT_EQ(comparisonText(more, TimeUnit::Hours, place.formats, place.calendar),
              "+5.5 h, +$550.00 on February 2024");
    const Comparison less = comparisonOf({}, before, place.billing, stretches);
    EXPECT_EQ(comparisonText(less, TimeUnit::Duration, place.formats, place.calendar),
              "−2h, −$200.00 on February 2024");
    place.billing.isMoneyOn = false;
    const auto running = stretchesOf(place, utc(2024, 3, 6));
    const Comparison partial = comparisonOf(place.events, before, place.billing, running);
    EXPECT_EQ(comparisonText(partial, TimeUnit::Hours, place.formats, place.calendar),
              "+6.5 h on 2/1/24 – 2/6/24");
}

TEST(GoalTest, TellsWhatIsReachedAndWhatIsLeft) {
    Place place("Europe/Berlin");
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.add(place.at(2024, 3, 4, 9), 600, "work");
    place.add(place.at(2024, 3, 4, 9), 600, "home");
    const Goal goal{.calendarIdentifier = "work", .amount = Decimal::fromInteger(40)};
    const auto progress = progressOf(goal, place.input());
    ASSERT_TRUE(progress);
    EXPECT_EQ(textOf(progress->target), "40");
    EXPECT_EQ(textOf(progress->reached), "10");
    EXPECT_EQ(textOf(progress->left), "30");
    EXPECT_EQ(textOf(progress->fraction), "0.25");
}

TEST(GoalTest, IsTakenForTheDaysOfThePeriod) {
    Place place;
    const Goal monthly{.calendarIdentifier = "work",
                       .measure = GoalMeasure::Money,
                       .span = GoalSpan::Month,
                       .amount = Decimal::fromInteger(290)};
    place.setPeriod(place.at(2024, 2, 20), place.at(2024, 3, 31));
    EXPECT_EQ(textOf(progressOf(monthly, place.input())->target), "390")
        << "10 of 29 days and a whole month";
    Goal weekly = monthly;
    weekly.span = GoalSpan::Week;
    weekly.amount = Decimal::fromInteger(70);
    place.setPeriod(place.at(2024, 3, 4), place.at(2024, 3, 5));
    place.add(place.at(2024, 3, 4, 9), 60);
    const auto progress = progressOf(weekly, place.input());
    EXPECT_EQ(textOf(progress->target), "20");
    EXPECT_EQ(textOf(progress->left), "0") << "more is reached than wanted";
    EXPECT_EQ(textOf(progress->fraction), "1");
    place.billing.isMoneyOn = false;
    EXPECT_FALSE(progressOf(weekly, place.input()));
    weekly.measure = GoalMeasure::Hours;
    weekly.amount = Decimal::notANumber();
    EXPECT_FALSE(progressOf(weekly, place.input()));
    weekly.amount = Decimal();
    EXPECT_EQ(progressOf(weekly, place.input())->fraction, std::nullopt);
}

} // namespace quillet
