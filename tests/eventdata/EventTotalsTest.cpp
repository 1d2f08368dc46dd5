#include "eventdata/EventTotals.h"

#include "support/EventSamples.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::timedEvent;
using test::utc;

Event eventOf(int minutes, const char* calendar = "work") {
    const Instant start = utc(2024, 3, 4, 9);
    return timedEvent(start, start + std::chrono::minutes(minutes), QString::fromLatin1(calendar));
}

BillingSettings withMoney() {
    BillingSettings billing;
    billing.isMoneyOn = true;
    return billing;
}

QString textOf(const std::optional<Decimal>& value) {
    return value ? value->toString() : QStringLiteral("none");
}

} // namespace

TEST(EventTotals, WithoutEventsHasSumsAndMeansOfZeroAndNoExtremes) {
    const EventTotals totals(withMoney());
    EXPECT_EQ(totals.count(), 0);
    EXPECT_EQ(totals.sumMinutes().toString(), "0");
    EXPECT_EQ(totals.sumHours().toString(), "0");
    EXPECT_EQ(textOf(totals.sumCost()), "0");
    EXPECT_EQ(totals.avgMinutes().toString(), "0");
    EXPECT_EQ(totals.avgHours().toString(), "0");
    EXPECT_EQ(textOf(totals.minMinutes()), "none");
    EXPECT_EQ(textOf(totals.maxMinutes()), "none");
    EXPECT_EQ(textOf(totals.minHours()), "none");
    EXPECT_EQ(textOf(totals.maxHours()), "none");
}

TEST(EventTotals, AddsUpInMinutesAndInHours) {
    EventTotals totals{BillingSettings()};
    totals.add(eventOf(90));
    totals.add(eventOf(45));
    EXPECT_EQ(totals.count(), 2);
    EXPECT_EQ(totals.sumMinutes().toString(), "135");
    EXPECT_EQ(textOf(totals.minMinutes()), "45");
    EXPECT_EQ(textOf(totals.maxMinutes()), "90");
    EXPECT_EQ(totals.avgMinutes().toString(), "67.5");
    EXPECT_EQ(totals.sumHours().toString(), "2.25");
    EXPECT_EQ(textOf(totals.minHours()), "0.75");
    EXPECT_EQ(textOf(totals.maxHours()), "1.5");
    EXPECT_EQ(totals.avgHours().toString(), "1.125");
    EXPECT_EQ(textOf(totals.sumCost()), "none") << "money is off";
}

TEST(EventTotals, CostsAreAddedByTheRatesOfTheirCalendars) {
    BillingSettings billing = withMoney();
    billing.isMoneyFromHours = true;
    billing.isSingleRate = false;
    billing.calendarRates = {{"work", Decimal::fromInteger(10)},
                             {"home", Decimal::fromInteger(20)}};
    EventTotals totals(billing);
    totals.add(eventOf(90));
    totals.add(eventOf(90));
    totals.add(eventOf(45, "home"));
    EXPECT_EQ(textOf(totals.sumCost()), "45");
    totals.add(eventOf(60, "unknown"));
    EXPECT_EQ(textOf(totals.sumCost()), "NaN") << "one calendar has no rate";
}

} // namespace quillet
