#include "insight/Picture.h"

#include "insight/InsightFixture.h"

namespace quillet {

using test::Place;
using test::textOf;
using test::utc;

TEST(PictureTest, LongPeriodsHaveCoarserBars) {
    EXPECT_EQ(pictureUnit(62), SliceUnit::Day);
    EXPECT_EQ(pictureUnit(63), SliceUnit::Week);
    EXPECT_EQ(pictureUnit(399), SliceUnit::Week);
    EXPECT_EQ(pictureUnit(400), SliceUnit::Month);
    Place place("Europe/Berlin");
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 5, 1));
    EXPECT_EQ(pictureOf(place.input()).bars.size(), 62) << "a day of 23 hours among them";
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 5, 2));
    EXPECT_EQ(pictureOf(place.input()).unit, SliceUnit::Week);
    place.setPeriod(place.at(2021, 1, 1), place.at(2024, 12, 30));
    EXPECT_EQ(pictureOf(place.input()).bars.size(), 48);
}

TEST(PictureTest, StacksTheCalendarsInTheOrderOfTheirFirstEvents) {
    Place place;
    place.setPeriod(place.at(2024, 3, 4), place.at(2024, 3, 10));
    place.add(utc(2024, 3, 4, 9), 60, "work");
    place.add(utc(2024, 3, 5, 9), 30, "home");
    place.add(utc(2024, 3, 5, 10), 45, "work");
    const Picture picture = pictureOf(place.input());
    ASSERT_EQ(picture.bars.size(), 7);
    ASSERT_EQ(picture.calendars.size(), 2);
    EXPECT_EQ(picture.calendars[0].identifier, "work");
    EXPECT_EQ(picture.calendars[0].amounts.minutes, 105);
    const Bar& tuesday = picture.bars[1];
    ASSERT_EQ(tuesday.parts.size(), 2);
    EXPECT_EQ(tuesday.parts[0].calendar, 0);
    EXPECT_EQ(tuesday.parts[0].amounts.minutes, 45);
    EXPECT_EQ(tuesday.events, (std::vector<EventIndex>{1, 2}));
    EXPECT_EQ(picture.mostMinutes, 75);
    EXPECT_EQ(picture.bars[5].kind, DayKind::Weekend);
    EXPECT_EQ(textOf(picture.total.cost), "225");
}

TEST(PictureTest, OfNoEventsHasBarsOfNothing) {
    Place place;
    place.setPeriod(place.at(2024, 3, 4), place.at(2024, 3, 10));
    const Picture picture = pictureOf(place.input());
    EXPECT_EQ(picture.bars.size(), 7);
    EXPECT_EQ(picture.mostMinutes, 0);
    EXPECT_EQ(barText(picture, picture.bars[0], TimeUnit::Hours, place.formats),
              "Monday, March 4, 2024: 0 h");
}

TEST(PictureTest, ABarSaysItsDayItsHoursItsMoneyAndItsCalendars) {
    Place place;
    place.setPeriod(place.at(2024, 3, 4), place.at(2024, 3, 10));
    place.add(utc(2024, 3, 4, 9), 60, "work");
    place.add(utc(2024, 3, 4, 9), 75, "home");
    const Picture picture = pictureOf(place.input());
    EXPECT_EQ(barText(picture, picture.bars[0], TimeUnit::Hours, place.formats),
              "Monday, March 4, 2024: 2.25 h, $225.00 (work 1 h, home 1.25 h)");
    EXPECT_EQ(barText(picture, picture.bars[0], TimeUnit::Minutes, place.formats),
              "Monday, March 4, 2024: 135 min, $225.00 (work 60 min, home 75 min)");
    EXPECT_EQ(barText(picture, picture.bars[0], TimeUnit::Duration, place.formats),
              "Monday, March 4, 2024: 2h 15m, $225.00 (work 1h, home 1h 15m)");
    EXPECT_EQ(barName(picture.bars[0], SliceUnit::Week, place.formats), "3/4/24 – 3/4/24");
    EXPECT_EQ(barName(picture.bars[0], SliceUnit::Month, place.formats), "March 2024");
}

TEST(PictureTest, EveryMinuteIsInOneBar) {
    EXPECT_TRUE(rc::check([] {
        Place place = test::anyMonth();
        const int days = *rc::gen::element(1, 31, 70, 420);
        place.setPeriod(place.at(2024, 2, 20), place.at(2024, 2, 20 + days - 1));
        const Picture picture = pictureOf(place.input());
        Amounts ofBars;
        Amounts ofCalendars;
        for (const Bar& bar : picture.bars) {
            ofBars.add(bar.amounts.minutes, bar.amounts.cost);
            Amounts ofParts;
            for (const BarPart& part : bar.parts) {
                ofParts.add(part.amounts.minutes, part.amounts.cost);
            }
            RC_ASSERT(ofParts.minutes == bar.amounts.minutes);
            RC_ASSERT(textOf(ofParts.cost) == textOf(bar.amounts.cost));
        }
        for (const PictureCalendar& calendar : picture.calendars) {
            ofCalendars.add(calendar.amounts.minutes, calendar.amounts.cost);
        }
        const EventTotals totals = place.totals();
        RC_ASSERT(Decimal::fromInteger(ofBars.minutes) == totals.sumMinutes());
        RC_ASSERT(ofCalendars.minutes == ofBars.minutes);
        if (!place.events.empty()) {
            RC_ASSERT(textOf(ofBars.cost) == textOf(totals.sumCost()));
            RC_ASSERT(textOf(ofCalendars.cost) == textOf(totals.sumCost()));
        }
    }));
}

} // namespace quillet
