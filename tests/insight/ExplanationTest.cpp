#include "insight/Explanation.h"

#include "eventdata/Duration.h"
#include "insight/InsightFixture.h"

namespace quillet {

namespace {

using test::Place;
using test::textOf;
using test::utc;

std::string textOf(const Explanation& explanation) {
    return explanationText(explanation).toStdString();
}

/// What a cell of the table shows for the event.
QString cellOf(const Event& event, const Place& place, ExplainedFigure figure, TimeUnit unit) {
    const EventFigures values = figures(event, place.billing);
    switch (figure) {
    case ExplainedFigure::Rate:
        return place.formats.currency(values.rate);
    case ExplainedFigure::Cost:
        return values.cost ? place.formats.currency(*values.cost) : QString();
    case ExplainedFigure::Time:
        break;
    }
    switch (unit) {
    case TimeUnit::Minutes:
        return place.formats.number(Decimal::fromInteger(values.minutes), 2);
    case TimeUnit::Duration:
        return values.duration;
    case TimeUnit::Hours:
        break;
    }
    return place.formats.number(values.hours, 2);
}

/// What the results panel shows for all events.
QString resultOf(const Place& place, ExplainedFigure figure, TimeUnit unit) {
    const EventTotals totals = place.totals();
    if (figure == ExplainedFigure::Cost) {
        const auto cost = totals.sumCost();
        return cost ? place.formats.currency(*cost) : QString();
    }
    switch (unit) {
    case TimeUnit::Minutes:
        return place.formats.number(totals.sumMinutes(), 2);
    case TimeUnit::Duration:
        return makeDurationFromMinutes(totals.sumMinutes().toInteger());
    case TimeUnit::Hours:
        break;
    }
    return place.formats.number(totals.sumHours(), 2);
}

TimeUnit anyUnit() {
    return *rc::gen::element(TimeUnit::Hours, TimeUnit::Minutes, TimeUnit::Duration);
}

} // namespace

TEST(ExplanationTest, ATimedEventsCostIsFollowedFromTheCalendarToTheCurrency) {
    Place place("Europe/Berlin");
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.setRate("work", Decimal::fromInteger(100));
    place.billing.isMoneyFromHours = false;
    place.add(place.at(2024, 3, 31, 23), 90, "work", "Stand-up");
    ExplanationFormats shown{.formats = place.formats,
                             .unit = TimeUnit::Hours,
                             .zone = "Europe/Berlin",
                             .placeOf = [](const StoreCalendar&) { return QString("work.ics"); }};
    EXPECT_EQ(textOf(explainEvent(place.events[0], place.billing, ExplainedFigure::Cost, shown)),
              "Cost of “Stand-up”\n"
              "Calendar\twork\twork.ics\n"
              "Start\t3/31/24 11:00\u202fPM\tin the zone Europe/Berlin\n"
              "End\t4/1/24 12:30\u202fAM\tin the zone Europe/Berlin\n"
              "Length\t90 min\n"
              "Minutes\t90\trounded to a whole minute, halves away from zero\n"
              "Rate\t$100.00\tthe rate of the calendar “work”\n"
              "Rate of a minute\t1.666666666666667\t"
              "the rate divided by 60, rounded to fifteen decimals\n"
              "Product\t150.00000000000003\tminutes times the rate of a minute, exact\n"
              "Cost\t$150.00\tshown with the decimals of the currency")
        << "a period ends 86,400 seconds after a last day of 23 hours began";
}

TEST(ExplanationTest, AnAllDayEventIsCountedInDays) {
    Place place;
    place.setPeriod(place.at(2024, 3, 2), place.at(2024, 3, 31));
    place.billing.allDayHours = 8;
    place.addAllDay(utc(2024, 3, 1), 3);
    const ExplanationFormats shown{.formats = place.formats, .unit = TimeUnit::Duration};
    EXPECT_EQ(textOf(explainEvent(place.events[0], place.billing, ExplainedFigure::Time, shown)),
              "Duration of “Away”\n"
              "Calendar\twork\n"
              "Start\t3/1/24\n"
              "End\t3/3/24\n"
              "Counts from\t3/2/24\tthe period begins after the event\n"
              "Days\t2\tan all-day event, in days of 24 hours\n"
              "Hours a day\t8\tfor which an all-day event counts\n"
              "Minutes\t960\trounded to a whole minute, halves away from zero\n"
              "Duration\t16h\tas it is shown");
}

TEST(ExplanationTest, SaysWhereThereIsNoMoneyAndNoRate) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.billing.isSingleRate = false;
    place.add(utc(2024, 3, 4, 9), 60);
    const ExplanationFormats shown{.formats = place.formats};
    const auto rate = explainEvent(place.events[0], place.billing, ExplainedFigure::Rate, shown);
    ASSERT_EQ(rate.steps.size(), 1);
    EXPECT_EQ(rate.steps[0].reason, "no rate is stored for the calendar “work”");
    place.billing.isMoneyOn = false;
    const auto cost = explainEvent(place.events[0], place.billing, ExplainedFigure::Cost, shown);
    EXPECT_EQ(cost.steps.back().value, "");
    EXPECT_EQ(cost.steps.back().reason, "money is switched off");
}

TEST(ExplanationTest, ATotalTellsTheExactSumAndTheOneOfWhatIsShown) {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    for (const char* calendar : {"work", "work", "home"}) {
        place.add(utc(2024, 3, 4, 9), 20, calendar);
    }
    const ExplanationFormats shown{.formats = place.formats};
    EXPECT_EQ(textOf(explainTotal(place.input(), ExplainedFigure::Time, shown)),
              "Total: Hours\n"
              "Events\t3\n"
              "work\t40 min\n"
              "home\t20 min\n"
              "Sum of the rounded values\t0.99\twhat adding up the rows as shown would give\n"
              "Exact sum\t60 min\trounded once, at the end\n"
              "Hours\t1\tas it is shown");
    EXPECT_TRUE(explainTotal(place.input(), ExplainedFigure::Rate, shown).steps.empty());
}

TEST(ExplanationTest, TheLastStepIsTheCellForAnyEventAndSetting) {
    EXPECT_TRUE(rc::check([] {
        const Place place = test::anyMonth();
        const auto figure =
            *rc::gen::element(ExplainedFigure::Time, ExplainedFigure::Rate, ExplainedFigure::Cost);
        const ExplanationFormats shown{.formats = place.formats, .unit = anyUnit()};
        for (const Event& event : place.events) {
            const Explanation explanation = explainEvent(event, place.billing, figure, shown);
            RC_ASSERT(explanation.steps.back().value == cellOf(event, place, figure, shown.unit));
        }
    }));
}

TEST(ExplanationTest, TheLastStepOfATotalIsTheResult) {
    EXPECT_TRUE(rc::check([] {
        const Place place = test::anyMonth();
        const auto figure = *rc::gen::element(ExplainedFigure::Time, ExplainedFigure::Cost);
        const ExplanationFormats shown{.formats = place.formats, .unit = anyUnit()};
        RC_ASSERT(explainTotal(place.input(), figure, shown).steps.back().value ==
                  resultOf(place, figure, shown.unit));
        const Picture picture = pictureOf(place.input());
        for (const Bar& bar : picture.bars) {
            const Explanation explanation = explainBar(picture, bar, figure, shown);
            RC_ASSERT(explanation.steps.back().value ==
                      (figure == ExplainedFigure::Cost
                           ? moneyText(bar.amounts.cost, place.formats)
                           : timeText(bar.amounts.minutes, shown.unit, place.formats)));
        }
    }));
}

} // namespace quillet
