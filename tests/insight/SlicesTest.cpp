#include "insight/Slices.h"

#include "insight/EventShares.h"
#include "insight/InsightFixture.h"

namespace quillet {

namespace {

using test::Place;
using test::textOf;
using test::utc;

Slices slicesOf(const Place& place, SliceUnit unit) {
    return {unit, place.billing, place.events, place.calendar};
}

} // namespace

TEST(SlicesTest, AMonthHasItsDaysAndTheLastEndsWithThePeriod) {
    Place place("Europe/Berlin");
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    const Slices slices = slicesOf(place, SliceUnit::Day);
    ASSERT_EQ(slices.count(), 31);
    EXPECT_EQ(slices.start(0), place.at(2024, 3, 1));
    EXPECT_EQ(slices.end(29), place.at(2024, 3, 31));
    EXPECT_EQ(slices.end(30), place.at(2024, 4, 1, 1)) << "86,400 seconds after a day of 23 hours";
}

TEST(SlicesTest, WeeksBeginAsTheLocaleHasItAndArePartsAtTheEdges) {
    Place american;
    american.setPeriod(american.at(2024, 3, 1), american.at(2024, 3, 31));
    const Slices fromSunday = slicesOf(american, SliceUnit::Week);
    ASSERT_EQ(fromSunday.count(), 6);
    EXPECT_EQ(fromSunday.start(1), utc(2024, 3, 3));
    EXPECT_EQ(fromSunday.start(5), utc(2024, 3, 31));
    Place german("UTC", "de_DE");
    german.setPeriod(german.at(2024, 3, 1), german.at(2024, 3, 31));
    const Slices fromMonday = slicesOf(german, SliceUnit::Week);
    ASSERT_EQ(fromMonday.count(), 5);
    EXPECT_EQ(fromMonday.start(0), utc(2024, 3, 1));
    EXPECT_EQ(fromMonday.start(1), utc(2024, 3, 4));
}

TEST(SlicesTest, MonthsBeginOnTheirFirstDay) {
    Place place;
    place.setPeriod(place.at(2023, 12, 15), place.at(2024, 2, 10));
    const Slices slices = slicesOf(place, SliceUnit::Month);
    ASSERT_EQ(slices.count(), 3);
    EXPECT_EQ(slices.start(1), utc(2024, 1, 1));
    EXPECT_EQ(slices.start(2), utc(2024, 2, 1));
    EXPECT_EQ(slices.end(2), utc(2024, 2, 11));
}

TEST(SlicesTest, AnInstantOutsideBelongsToTheNearest) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    const Slices slices = slicesOf(place, SliceUnit::Day);
    EXPECT_EQ(slices.at(utc(2024, 2, 1)), 0);
    EXPECT_EQ(slices.at(utc(2024, 3, 2)), 1);
    EXPECT_EQ(slices.at(utc(2024, 3, 3) - std::chrono::milliseconds(1)), 1);
    EXPECT_EQ(slices.at(utc(2025, 1, 1)), 30);
}

TEST(SlicesTest, WithoutAPeriodTheEventsSayWhatToCut) {
    Place place;
    EXPECT_EQ(slicesOf(place, SliceUnit::Day).count(), 1) << "no events either";
    place.add(utc(2024, 3, 5, 9), 60);
    place.add(utc(2024, 3, 7, 9), 60);
    EXPECT_EQ(slicesOf(place, SliceUnit::Day).count(), 3);
    place.add(utc(1984, 3, 7), 40 * 366 * 24 * 60);
    EXPECT_EQ(slicesOf(place, SliceUnit::Month).count(), 482);
    place.add(utc(-5000, 1, 1), 60);
    EXPECT_LE(slicesOf(place, SliceUnit::Month).count(), 1201) << "a hundred years at most";
}

TEST(EventSharesTest, AnEventOverMidnightIsCutThere) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.add(utc(2024, 3, 4, 22), 240);
    const Slices slices = slicesOf(place, SliceUnit::Day);
    EventShares shares(slices, place.billing);
    const auto parts = shares.of(place.events.front());
    ASSERT_EQ(parts.size(), 2);
    EXPECT_EQ(parts[0].slice, 3);
    EXPECT_EQ(parts[0].minutes, 120);
    EXPECT_EQ(parts[1].slice, 4);
    EXPECT_EQ(parts[1].minutes, 120);
    EXPECT_EQ(textOf(parts[1].cost), "200");
}

TEST(EventSharesTest, AnEventWithANegativeLengthIsOneShareWhereItStarts) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.add(utc(2024, 3, 4, 22), -3000);
    const Slices slices = slicesOf(place, SliceUnit::Day);
    EventShares shares(slices, place.billing);
    const auto parts = shares.of(place.events.front());
    ASSERT_EQ(parts.size(), 1);
    EXPECT_EQ(parts[0].slice, 3);
    EXPECT_EQ(parts[0].minutes, -3000);
}

TEST(EventSharesTest, SharesAddUpToTheFiguresOfTheEvent) {
    EXPECT_TRUE(rc::check([] {
        const Place place = test::anyMonth();
        const auto unit = *rc::gen::element(SliceUnit::Day, SliceUnit::Week, SliceUnit::Month);
        const Slices slices = slicesOf(place, unit);
        EventShares shares(slices, place.billing);
        for (const Event& event : place.events) {
            Amounts sum;
            std::size_t next = 0;
            for (const EventShare& share : shares.of(event)) {
                RC_ASSERT(share.slice >= next);
                next = share.slice + 1;
                sum.add(share.minutes, share.cost);
            }
            const EventFigures whole = figures(event, place.billing);
            RC_ASSERT(sum.minutes == whole.minutes);
            RC_ASSERT(textOf(sum.cost) == textOf(whole.cost));
        }
    }));
}

} // namespace quillet
