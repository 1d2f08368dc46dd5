#include "insight/Summary.h"

#include "backends/icu/IcuCollator.h"
#include "insight/InsightFixture.h"
#include "insight/SummaryTexts.h"

namespace quillet {

namespace {

using test::Place;
using test::textOf;
using test::utc;

Place march() {
    Place place;
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    return place;
}

std::string namesOf(const std::vector<SummaryRow>& rows, const LocaleFormats& formats) {
    QStringList names;
    for (const SummaryRow& row : rows) {
        names.append(summaryRowName(row, formats));
    }
    return names.join(u'|').toStdString();
}

void expectSumOfRows(const std::vector<SummaryRow>& rows, const Amounts& whole) {
    Amounts sum;
    for (const SummaryRow& row : rows) {
        sum.add(row.amounts.minutes, row.amounts.cost);
    }
    RC_ASSERT(sum.minutes == whole.minutes);
    RC_ASSERT(rows.empty() || textOf(sum.cost) == textOf(whole.cost));
}

const std::array keys{SummaryKey::Calendar, SummaryKey::Day,   SummaryKey::Week,
                      SummaryKey::Month,    SummaryKey::Title, SummaryKey::Location};

} // namespace

TEST(SummaryTest, OfNoEventsHasNoRowsAndTotalsOfZero) {
    const Summary summary = summaryOf(march().input(), SummaryKey::Calendar, SummaryKey::Day);
    EXPECT_TRUE(summary.rows.empty());
    EXPECT_EQ(summary.total.minutes, 0);
    EXPECT_EQ(textOf(summary.total.cost), "0");
    EXPECT_TRUE(differenceOf(summary, TimeUnit::Hours, march().formats).isNone());
}

TEST(SummaryTest, GroupsByCalendarAndByTitleInside) {
    Place place = march();
    place.add(utc(2024, 3, 4, 9), 30, "work", "Plan");
    place.add(utc(2024, 3, 4, 10), 60, "home", "Plan");
    place.add(utc(2024, 3, 5, 9), 90, "work", "Call");
    place.add(utc(2024, 3, 6, 9), 15, "work", "Plan");
    const Summary summary = summaryOf(place.input(), SummaryKey::Calendar, SummaryKey::Title);
    ASSERT_EQ(namesOf(summary.rows, place.formats), "work|home");
    const SummaryRow& work = summary.rows.front();
    EXPECT_EQ(work.calendarIdentifier, "work");
    EXPECT_EQ(work.amounts.minutes, 135);
    EXPECT_EQ(textOf(work.amounts.cost), "225");
    EXPECT_EQ(work.events, (std::vector<EventIndex>{0, 2, 3}));
    ASSERT_EQ(namesOf(work.children, place.formats), "Plan|Call");
    EXPECT_EQ(work.children.front().events, (std::vector<EventIndex>{0, 3}));
    EXPECT_EQ(summary.total.minutes, 195);
    EXPECT_EQ(summary.eventCount, 4);
}

TEST(SummaryTest, CalendarsOfOneNameAreTwoRowsAndOneCalendarReadTwiceIsOne) {
    Place place = march();
    place.add(utc(2024, 3, 4, 9), 30, "a");
    place.add(utc(2024, 3, 4, 9), 30, "a");
    auto details = std::make_shared<EventDetails>(*place.events.front().details);
    details->calendar = std::make_shared<StoreCalendar>(
        StoreCalendar{.calendarIdentifier = "b", .title = "a", .colorName = {}});
    place.events.front().details = details;
    const Summary summary = summaryOf(place.input(), SummaryKey::Calendar);
    ASSERT_EQ(namesOf(summary.rows, place.formats), "a|a");
    place.add(utc(2024, 3, 4, 9), 30, "b");
    EXPECT_EQ(summaryOf(place.input(), SummaryKey::Calendar).rows.front().events.size(), 2);
}

TEST(SummaryTest, AnEventOverMidnightStandsInBothDaysWithItsPartOfEach) {
    Place place = march();
    place.add(utc(2024, 3, 5, 9), 60);
    place.add(utc(2024, 3, 4, 22), 180);
    const Summary summary = summaryOf(place.input(), SummaryKey::Day);
    ASSERT_EQ(namesOf(summary.rows, place.formats), "3/4/24|3/5/24");
    EXPECT_EQ(summary.rows[0].amounts.minutes, 120);
    EXPECT_EQ(summary.rows[1].amounts.minutes, 120);
    EXPECT_EQ(summary.rows[1].events, (std::vector<EventIndex>{0, 1}));
    const auto difference = differenceOf(summary, TimeUnit::Hours, place.formats);
    EXPECT_EQ(difference.events, -1);
    EXPECT_EQ(differenceText(difference, place.formats), "One event stands in two rows");
}

TEST(SummaryTest, WeeksAndMonthsAreNamedByWhatLiesInThePeriod) {
    Place place = march();
    place.setPeriod(place.at(2024, 2, 28), place.at(2024, 3, 31));
    place.add(utc(2024, 2, 29, 22), 240);
    const Summary summary = summaryOf(place.input(), SummaryKey::Month, SummaryKey::Week);
    ASSERT_EQ(namesOf(summary.rows, place.formats), "February 2024|March 2024");
    EXPECT_EQ(namesOf(summary.rows[0].children, place.formats), "2/28/24 – 3/2/24");
    EXPECT_EQ(namesOf(summary.rows[1].children, place.formats), "2/28/24 – 3/2/24");
    EXPECT_EQ(summary.rows[1].children[0].amounts.minutes, 120);
}

TEST(SummaryTest, ARowTellsWhatRoundingTakes) {
    Place place = march();
    for (const char* title : {"a", "b", "c"}) {
        place.add(utc(2024, 3, 4, 9), 20, "work", title);
    }
    const Summary summary = summaryOf(place.input(), SummaryKey::Title);
    const auto difference = differenceOf(summary, TimeUnit::Hours, place.formats);
    EXPECT_EQ(textOf(difference.time), "0.01") << "three times 0.33 beside 1";
    EXPECT_EQ(textOf(difference.money), "0") << "hours are rounded before they cost";
    EXPECT_EQ(differenceText(difference, place.formats), "Rounding: +0.01");
    EXPECT_TRUE(differenceOf(summary, TimeUnit::Minutes, place.formats).isNone());
    place.billing.isMoneyFromHours = false;
    place.billing.singleRate = Decimal::fromString(u"0.01");
    const auto cents =
        differenceOf(summaryOf(place.input(), SummaryKey::Title), TimeUnit::Minutes, place.formats);
    EXPECT_EQ(differenceText(cents, place.formats), "Rounding: +$0.01");
}

TEST(SummaryTest, WithoutARateMoneyIsNotANumberAndTheRestIs) {
    Place place = march();
    place.setRate("work", Decimal::fromInteger(10));
    place.add(utc(2024, 3, 4, 9), 60, "work");
    place.add(utc(2024, 3, 4, 9), 60, "home");
    Summary summary = summaryOf(place.input(), SummaryKey::Calendar);
    EXPECT_EQ(textOf(summary.rows[1].amounts.cost), "NaN");
    EXPECT_EQ(textOf(summary.total.cost), "NaN");
    EXPECT_EQ(shareOfMoney(summary.rows[0].amounts, summary.total), std::nullopt);
    EXPECT_EQ(textOf(shareOfTime(summary.rows[0].amounts, summary.total)), "0.5");
    const IcuCollator collator("en_US");
    for (const auto direction : {SortDirection::Ascending, SortDirection::Descending}) {
        sortSummary(summary, SummaryColumn::Money, direction, collator);
        EXPECT_EQ(namesOf(summary.rows, place.formats), "work|home");
    }
}

TEST(SummaryTest, SortsBothLevelsByEachColumn) {
    Place place = march();
    place.add(utc(2024, 3, 4, 9), 60, "work", "Zoo");
    place.add(utc(2024, 3, 5, 9), 30, "work", "\xc3\x84rger");
    place.add(utc(2024, 3, 6, 9), 240, "home", "Bau");
    place.add(utc(2024, 3, 7, 9), 5, "work", "Zoo");
    Summary summary = summaryOf(place.input(), SummaryKey::Calendar, SummaryKey::Title);
    const IcuCollator collator("de_DE");
    const auto sorted = [&](SummaryColumn column, SortDirection direction) {
        sortSummary(summary, column, direction, collator);
        return namesOf(summary.rows, place.formats) + "; " +
               namesOf(summary.rows[summary.rows.front().text == "work" ? 0 : 1].children,
                       place.formats);
    };
    using enum SortDirection;
    EXPECT_EQ(sorted(SummaryColumn::Name, Ascending), "home|work; \xc3\x84rger|Zoo");
    EXPECT_EQ(sorted(SummaryColumn::Name, Descending), "work|home; Zoo|\xc3\x84rger");
    EXPECT_EQ(sorted(SummaryColumn::Events, Ascending), "home|work; \xc3\x84rger|Zoo");
    EXPECT_EQ(sorted(SummaryColumn::Time, Descending), "home|work; Zoo|\xc3\x84rger");
    EXPECT_EQ(sorted(SummaryColumn::Money, Ascending), "work|home; \xc3\x84rger|Zoo");
    EXPECT_EQ(sorted(SummaryColumn::Share, Descending), "home|work; Zoo|\xc3\x84rger");
}

TEST(SummaryTest, CopiesAsRowsWithTabs) {
    Place place = march();
    place.add(utc(2024, 3, 4, 9), 20, "work", "a\tb");
    place.add(utc(2024, 3, 4, 9), 20, "work", "");
    place.add(utc(2024, 3, 4, 9), 20, "home", "c");
    const QString text =
        summaryText(summaryOf(place.input(), SummaryKey::Calendar, SummaryKey::Title),
                    TimeUnit::Hours, place.formats);
    EXPECT_EQ(text, "\t\tEvents\tHours\tCost\tShare\n"
                    "work\t\t2\t0.67\t$66.00\t66.7%\n"
                    "\ta b\t1\t0.33\t$33.00\t33.3%\n"
                    "\t(no title)\t1\t0.33\t$33.00\t33.3%\n"
                    "Rounding: +0.01\n"
                    "home\t\t1\t0.33\t$33.00\t33.3%\n"
                    "\tc\t1\t0.33\t$33.00\t33.3%\n"
                    "Total\t\t3\t1\t$99.00\t100%");
    place.billing.isMoneyOn = false;
    EXPECT_EQ(
        summaryText(summaryOf(place.input(), SummaryKey::Month), TimeUnit::Duration, place.formats),
        "\tEvents\tDuration\tShare\nMarch 2024\t3\t1h\t100%\nTotal\t3\t1h\t100%");
}

TEST(SummaryTest, RowsOfEitherLevelAddUpToTheTotalsOfTheResultsToTheLastDigit) {
    EXPECT_TRUE(rc::check([] {
        const Place place = test::anyMonth();
        const auto first = *rc::gen::elementOf(keys);
        const auto second = *rc::gen::elementOf(keys);
        const Summary summary = summaryOf(place.input(), first, second);
        expectSumOfRows(summary.rows, summary.total);
        for (const SummaryRow& row : summary.rows) {
            RC_ASSERT(!row.events.empty());
            if (first != second) {
                expectSumOfRows(row.children, row.amounts);
            }
        }
        const EventTotals totals = place.totals();
        RC_ASSERT(Decimal::fromInteger(summary.total.minutes) == totals.sumMinutes());
        RC_ASSERT(textOf(summary.total.cost) == textOf(totals.sumCost()));
    }));
}

TEST(SummaryTest, BearsWhatNobodyKeepsInACalendar) {
    Place place = march();
    place.add(utc(1990, 1, 1), 40 * 366 * 24 * 60, "work", "forty years");
    place.add(utc(2024, 3, 4, 9), 1, "work", "");
    auto details = std::make_shared<EventDetails>(*place.events.back().details);
    details->title = QString(1 << 20, u'x');
    place.events.back().details = details;
    const Summary days = summaryOf(place.input(), SummaryKey::Day, SummaryKey::Title);
    EXPECT_EQ(days.rows.size(), 31);
    EXPECT_EQ(days.total.minutes, 31 * 1440 + 1);
    place.events.clear();
    for (int number = 0; number < 10'000; ++number) {
        place.add(utc(2024, 3, 4, 9), 1, QByteArray::number(number).constData());
    }
    EXPECT_EQ(summaryOf(place.input(), SummaryKey::Calendar).rows.size(), 10'000);
}

} // namespace quillet
