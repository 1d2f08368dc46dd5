#include "export/TextReportHeader.h"

#include "TextReportFixture.h"
#include "platform/Settings.h"

namespace quillet {

namespace {

class TextReportHeaderTest : public TextReportFixture {
protected:
    [[nodiscard]] QString header() const { return reportHeader(content, reportTotals(content)); }
    /// Wants these lines and no others.
    void want(std::initializer_list<const Setting<bool>*> wanted) {
        content.headerLines.clear();
        for (const ReportHeaderLine& line : reportHeaderLines()) {
            if (std::ranges::find(wanted, &line.isWanted) != wanted.end()) {
                content.headerLines.push_back(&line);
            }
        }
        ASSERT_EQ(content.headerLines.size(), wanted.size());
    }
    /// Its text with one line wanted alone.
    [[nodiscard]] QString headerWith(const Setting<bool>& each) {
        want({&each});
        return header();
    }
    void turnAllOn() {
        for (const ReportHeaderLine& line : reportHeaderLines()) {
            content.headerLines.push_back(&line);
        }
    }
};

} // namespace

TEST_F(TextReportHeaderTest, HoldsEveryLineThatIsOnInOrder) {
    turnAllOn();
    useSingleRate(100);
    content.timeType = 1;
    content.headerText = "Invoice 7";
    content.calendarTitles = {"Work"};
    add(90);
    add(45);
    EXPECT_EQ(header(), "Invoice 7\n\n"
                        "Work\n"
                        "Beginning Date: 3/1/24\n"
                        "Ending Date: 3/31/24\n"
                        "Hours: 2.25\n"
                        "Min: 0.75\n"
                        "Max: 1.5\n"
                        "Avg: 1.12\n"
                        "Days: 31\n"
                        "Events: 2\n"
                        "Hourly Rate: $100.00\n"
                        "Cost: $225.00\n");
}

TEST_F(TextReportHeaderTest, WithoutEventsIsEmptyWhateverIsOn) {
    turnAllOn();
    useSingleRate(100);
    content.timeType = 1;
    content.headerText = "Invoice 7";
    EXPECT_EQ(header(), "");
}

TEST_F(TextReportHeaderTest, WithNothingOnIsEmpty) {
    add(60);
    useSingleRate(100);
    content.timeType = 1;
    content.calendarTitles = {"Work"};
    EXPECT_EQ(header(), "");
    content.headerText = "Invoice 7";
    EXPECT_EQ(header(), "Invoice 7\n\n");
}

TEST_F(TextReportHeaderTest, EachSwitchTurnsItsOwnLineOn) {
    content.timeType = 2;
    useSingleRate(60);
    content.calendarTitles = {"Work"};
    add(90);
    add(30);
    EXPECT_EQ(headerWith(settings::isTXTCalTitle), "Work\n");
    EXPECT_EQ(headerWith(settings::isTXTBeginDate), "Beginning Date: 3/1/24\n");
    EXPECT_EQ(headerWith(settings::isTXTEndDate), "Ending Date: 3/31/24\n");
    EXPECT_EQ(headerWith(settings::isTXTTotalHours), "Minutes: 120\n");
    EXPECT_EQ(headerWith(settings::isTXTMin), "Min: 30\n");
    EXPECT_EQ(headerWith(settings::isTXTMax), "Max: 90\n");
    EXPECT_EQ(headerWith(settings::isTXTAverage), "Avg: 60\n");
    EXPECT_EQ(headerWith(settings::isTXTTotalDays), "Days: 31\n");
    EXPECT_EQ(headerWith(settings::isTXTTotalEvents), "Events: 2\n");
    EXPECT_EQ(headerWith(settings::isTXTDollars), "Hourly Rate: $60.00\nCost: $120.00\n");
}

TEST_F(TextReportHeaderTest, CalendarsAreSortedByCharactersWithUpperCaseFirst) {
    add(60);
    content.calendarTitles = {"work", "Éclair", "Zoo", "Apollo"};
    EXPECT_EQ(headerWith(settings::isTXTCalTitle), "Apollo, Zoo, work, Éclair\n");
}

TEST_F(TextReportHeaderTest, NoCalendarIsAnEmptyLine) {
    add(60);
    EXPECT_EQ(headerWith(settings::isTXTCalTitle), "\n");
}

TEST_F(TextReportHeaderTest, FreeTextsAreTakenAsTheyAre) {
    add(60);
    content.headerText = "100% %1\nof \"it\"";
    content.calendarTitles = {"5% %2"};
    EXPECT_EQ(headerWith(settings::isTXTCalTitle), "100% %1\nof \"it\"\n\n5% %2\n");
}

TEST_F(TextReportHeaderTest, TimesAreHoursMinutesOrDurationsByTheTimeType) {
    add(90);
    add(45);
    want({&settings::isTXTTotalHours, &settings::isTXTMin, &settings::isTXTMax,
          &settings::isTXTAverage});
    content.timeType = 1;
    EXPECT_EQ(header(), "Hours: 2.25\nMin: 0.75\nMax: 1.5\nAvg: 1.12\n");
    content.timeType = 2;
    EXPECT_EQ(header(), "Minutes: 135\nMin: 45\nMax: 90\nAvg: 67.5\n");
    content.timeType = 3;
    EXPECT_EQ(header(), "Duration: 2h 15m\nMin: 0h 45m\nMax: 1h 30m\nAvg: 1h 7m\n");
}

TEST_F(TextReportHeaderTest, AnyOtherTimeTypeShowsNoTimes) {
    add(90);
    want({&settings::isTXTTotalHours, &settings::isTXTMin, &settings::isTXTMax,
          &settings::isTXTAverage, &settings::isTXTTotalEvents});
    for (const qint64 timeType : {-1, 0, 4, 99}) {
        content.timeType = timeType;
        EXPECT_EQ(header(), "Events: 1\n") << timeType;
    }
}

TEST_F(TextReportHeaderTest, ANegativeTotalIsShownWithoutItsSign) {
    content.billing.periodStart = test::utc(2024, 3, 10);
    add(60);
    content.timeType = 1;
    EXPECT_EQ(headerWith(settings::isTXTTotalHours), "Hours: 134\n");
    content.timeType = 3;
    EXPECT_EQ(headerWith(settings::isTXTTotalHours), "Duration: 0h\n");
}

TEST_F(TextReportHeaderTest, RatesOfCalendarsAreNamedAfterTheCalendarColumn) {
    add(60);
    useSingleRate(100);
    content.billing.isSingleRate = false;
    content.billing.calendarRates.insert("Work", Decimal::fromInteger(30));
    content.calendarColumnTitle = "Calendar";
    EXPECT_EQ(headerWith(settings::isTXTDollars), "Hourly Rate: Calendar Rates\nCost: $30.00\n");
    content.calendarColumnTitle = "Klient";
    EXPECT_EQ(headerWith(settings::isTXTDollars), "Hourly Rate: Klient Rates\nCost: $30.00\n");
}

TEST_F(TextReportHeaderTest, AnAbsentSingleRateLeavesItsLineOut) {
    add(60);
    useSingleRate(0);
    content.hourlyRate.reset();
    EXPECT_EQ(headerWith(settings::isTXTDollars), "Cost: $0.00\n");
}

TEST_F(TextReportHeaderTest, MoneyIsShownOnlyWhereMoneyIsOnToo) {
    add(60);
    useSingleRate(100);
    content.billing.isMoneyOn = false;
    EXPECT_EQ(headerWith(settings::isTXTDollars), "");
}

TEST_F(TextReportHeaderTest, TheEndDateIsShownAsItIsStored) {
    add(60);
    content.periodEnd = test::utc(2024, 4, 1);
    EXPECT_EQ(headerWith(settings::isTXTEndDate), "Ending Date: 4/1/24\n");
    EXPECT_EQ(headerWith(settings::isTXTTotalDays), "Days: 31\n") << "less one second";
}

TEST_F(TextReportHeaderTest, APeriodThatIsNotStoredIsNamedNull) {
    add(60);
    content.periodStart.reset();
    content.periodEnd.reset();
    EXPECT_EQ(headerWith(settings::isTXTBeginDate), "Beginning Date: (null)\n");
    EXPECT_EQ(headerWith(settings::isTXTEndDate), "Ending Date: (null)\n");
    EXPECT_EQ(headerWith(settings::isTXTTotalDays), "Days: 0\n");
}

TEST_F(TextReportHeaderTest, FollowsTheLocale) {
    useZone("UTC", "de_DE");
    add(90);
    add(45);
    useSingleRate(100);
    content.timeType = 1;
    want({&settings::isTXTBeginDate, &settings::isTXTTotalHours, &settings::isTXTDollars});
    EXPECT_EQ(header(), u"Beginning Date: 01.03.24\nHours: 2,25\n"
                        u"Hourly Rate: 100,00\u00A0€\nCost: 225,00\u00A0€\n"_qs);
}

} // namespace quillet
