#include "insight/RoundedBilling.h"

#include "insight/Explanation.h"
#include "insight/InsightFixture.h"
#include "insight/Picture.h"
#include "insight/Summary.h"

namespace quillet {

namespace {

using test::Place;
using test::textOf;
using test::utc;

using enum RoundingDirection;

Place march() {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    return place;
}

} // namespace

TEST(RoundedBillingTest, RoundsToSteps) {
    EXPECT_EQ(roundedMinutes(61, 15, Up), 75);
    EXPECT_EQ(roundedMinutes(60, 15, Up), 60);
    EXPECT_EQ(roundedMinutes(74, 15, Down), 60);
    EXPECT_EQ(roundedMinutes(67, 15, Nearest), 60);
    EXPECT_EQ(roundedMinutes(33, 6, Nearest), 36) << "halfway counts as up";
    EXPECT_EQ(roundedMinutes(1, 60, Up), 60);
    EXPECT_EQ(roundedMinutes(0, 60, Up), 0);
    EXPECT_EQ(roundedMinutes(-7, 5, Down), -7);
    EXPECT_EQ(roundedMinutes(7, 0, Up), 7);
}

TEST(RoundedBillingTest, EachEventIsRoundedAndCostsWhatTheRoundedTimeCosts) {
    Place place = march();
    place.setRate("work", Decimal::fromInteger(100));
    place.setRate("home", Decimal::fromInteger(20));
    place.add(utc(2024, 3, 4, 9), 50, "work");
    place.add(utc(2024, 3, 4, 10), 5, "home");
    place.add(utc(2024, 3, 4, 11), 0, "home");
    const BilledTotals totals =
        billedTotalsOf(place.input(), {.stepMinutes = 15, .minimumMinutes = 20});
    ASSERT_EQ(totals.entries.size(), 3);
    EXPECT_EQ(totals.entries[0].billed.minutes, 60);
    EXPECT_EQ(textOf(totals.entries[0].billed.cost), "100");
    EXPECT_EQ(totals.entries[1].billed.minutes, 20) << "the minimum";
    EXPECT_EQ(totals.entries[2].billed.minutes, 0) << "nothing was done";
    EXPECT_EQ(totals.exact.minutes, 55);
    EXPECT_EQ(totals.billed.minutes, 80);
    EXPECT_EQ(textOf(totals.billed.cost), "106.6");
    EXPECT_EQ(billedText(totals.exact, totals.billed, TimeUnit::Hours, place.formats),
              "exact 0.92 h ($84.60), billed 1.33 h ($106.60)");
}

TEST(RoundedBillingTest, ADayOfATitleIsRoundedAsOne) {
    Place place = march();
    place.add(utc(2024, 3, 4, 9), 5, "work", "Mail");
    place.add(utc(2024, 3, 4, 11), 5, "work", "Mail");
    place.add(utc(2024, 3, 4, 12), 5, "work", "Call");
    place.add(utc(2024, 3, 4, 13), 5, "home", "Mail");
    place.add(utc(2024, 3, 4, 23, 50), 20, "work", "Mail");
    const BillingRounding rounding{.stepMinutes = 15, .scope = RoundingScope::DayAndTitle};
    const BilledTotals totals = billedTotalsOf(place.input(), rounding);
    ASSERT_EQ(totals.entries.size(), 4);
    EXPECT_EQ(totals.entries[0].events, (std::vector<EventIndex>{0, 1, 4}));
    EXPECT_EQ(totals.entries[0].exact.minutes, 20);
    EXPECT_EQ(totals.entries[0].billed.minutes, 30);
    EXPECT_EQ(totals.entries[3].day, utc(2024, 3, 5));
    EXPECT_EQ(totals.entries[3].billed.minutes, 15);
    EXPECT_EQ(totals.billed.minutes, 75);
    BillingRounding withMinimum = rounding;
    withMinimum.minimumMinutes = 20;
    EXPECT_EQ(billedTotalsOf(place.input(), withMinimum).entries[0].billed.minutes, 60)
        << "three events begin on the day";
    EXPECT_EQ(billedTotalsOf(place.input(), withMinimum).entries[3].billed.minutes, 15)
        << "none begins on this one";
}

TEST(RoundedBillingTest, TellsWhyAnEntryIsBilledAsItIs) {
    Place place = march();
    place.add(utc(2024, 3, 4, 9), 50, "work", "Plan");
    const BillingRounding rounding{.stepMinutes = 15, .minimumMinutes = 20};
    const BilledTotals totals = billedTotalsOf(place.input(), rounding);
    const ExplanationFormats shown{.formats = place.formats};
    EXPECT_EQ(explanationText(explainBilled(totals.entries[0], rounding, place.input(),
                                            ExplainedFigure::Cost, shown)),
              "Billed: Cost of “Plan”\n"
              "Events\t1\teach event is rounded by itself\n"
              "Exact\t50 min\n"
              "Step\t15 min\trounded up\n"
              "At least\t20 min\tfor each event that begins\n"
              "Billed\t60 min\n"
              "Rate\t$100.00\n"
              "Cost\t$100.00\tas it is shown");
    const Picture picture = pictureOf(place.input(), {}, surplusesOf(totals));
    EXPECT_EQ(barText(picture, picture.bars[3], TimeUnit::Hours, place.formats),
              "Monday, March 4, 2024: exact 0.83 h ($83.00), billed 1 h ($100.00)");
}

TEST(RoundedBillingTest, ExactFiguresStayThoseOfTheResults) {
    EXPECT_TRUE(rc::check([] {
        const Place place = test::anyMonth();
        BillingRounding rounding;
        rounding.stepMinutes = *rc::gen::elementOf(roundingStepsMinutes);
        rounding.direction = *rc::gen::element(Up, Down, Nearest);
        rounding.scope = *rc::gen::element(RoundingScope::Event, RoundingScope::DayAndTitle);
        const BilledTotals totals = billedTotalsOf(place.input(), rounding);
        RC_ASSERT(Decimal::fromInteger(totals.exact.minutes) == place.totals().sumMinutes());
        RC_ASSERT(textOf(totals.exact.cost) == textOf(place.totals().sumCost()));
        std::int64_t billed = 0;
        for (const BilledEntry& entry : totals.entries) {
            const std::int64_t change = entry.billed.minutes - entry.exact.minutes;
            billed += entry.billed.minutes;
            RC_ASSERT(std::abs(change) < rounding.stepMinutes);
            RC_ASSERT(entry.exact.minutes <= 0 || entry.billed.minutes % rounding.stepMinutes == 0);
            RC_ASSERT(rounding.direction != Up || change >= 0);
            RC_ASSERT(rounding.direction != Down || change <= 0);
        }
        RC_ASSERT(billed == totals.billed.minutes);
        const auto surpluses = surplusesOf(totals);
        const auto key =
            *rc::gen::element(SummaryKey::Calendar, SummaryKey::Week, SummaryKey::Title);
        const Summary summary = summaryOf(place.input(), key, SummaryKey::Day, surpluses);
        RC_ASSERT(summary.billedTotal.minutes == billed);
        RC_ASSERT(textOf(summary.billedTotal.cost) == textOf(totals.billed.cost));
        std::int64_t ofRows = 0;
        for (const SummaryRow& row : summary.rows) {
            std::int64_t ofChildren = 0;
            for (const SummaryRow& child : row.children) {
                RC_ASSERT(!child.events.empty());
                ofChildren += child.billed.minutes;
            }
            RC_ASSERT(ofChildren == row.billed.minutes);
            ofRows += row.billed.minutes;
        }
        RC_ASSERT(ofRows == billed);
        std::int64_t ofBars = 0;
        for (const Bar& bar : pictureOf(place.input(), {}, surpluses).bars) {
            ofBars += bar.billed.minutes;
        }
        RC_ASSERT(ofBars == billed);
    }));
}

} // namespace quillet
