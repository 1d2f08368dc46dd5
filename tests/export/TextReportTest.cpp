#include "export/TextReport.h"

#include "TextReportFixture.h"

namespace quillet {

namespace {

using enum StyledText::Style;
using Parts = std::vector<StyledText::Part>;

class TextReportTest : public TextReportFixture {
protected:
    TextReportTest() { show({{"title", 7}, {"hours", 5}}); }
    [[nodiscard]] StyledText report() const { return textReport(content).value_or(StyledText()); }
};

const QString titles = "title   hours \n--------------\n";

} // namespace

TEST_F(TextReportTest, JoinsHeaderTableSummaryAndFooter) {
    add(90);
    content.headerText = "Invoice 7";
    content.footerText = "Thank you";
    content.hasSummaryRow = true;
    EXPECT_EQ(report().parts, (Parts{{"\n", Plain},
                                     {"Invoice 7\n\n", Monospaced},
                                     {"\n", Plain},
                                     {titles + "Meeting 1.5   \n", Monospaced},
                                     {"--------------\n        1.5   ", Monospaced},
                                     {"\n\n\n", Plain},
                                     {"Thank you", Monospaced},
                                     {"\n", Plain}}));
    EXPECT_EQ(report().text(), "\nInvoice 7\n\n\n" + titles +
                                   "Meeting 1.5   \n--------------\n        1.5   "
                                   "\n\n\nThank you\n");
}

TEST_F(TextReportTest, AllOfItIsInTheTextColour) {
    EXPECT_TRUE(report().hasTextColor);
}

TEST_F(TextReportTest, LeavesOutWhatIsEmptyOrOff) {
    add(90);
    EXPECT_EQ(report().parts,
              (Parts{{"\n", Plain}, {titles + "Meeting 1.5   \n", Monospaced}, {"\n", Plain}}));
}

TEST_F(TextReportTest, WithoutEventsHasNoHeaderButItsFooter) {
    content.headerText = "Invoice 7";
    content.footerText = "Thank you";
    content.hasSummaryRow = true;
    EXPECT_EQ(report().text(), "\n" + titles + "--------------\n        0     \n\n\nThank you\n");
}

TEST_F(TextReportTest, CancelledIsNone) {
    add(60);
    content.events = ExportedEvents(std::make_shared<const EventList>(events),
                                    std::vector<std::size_t>(1000, 0));
    const auto answer = [](ExportAnswer given) {
        return [given](std::size_t, std::size_t) { return given; };
    };
    EXPECT_FALSE(textReport(content, answer(ExportAnswer::Cancel)).has_value());
    EXPECT_TRUE(textReport(content, answer(ExportAnswer::GoOn)).has_value());
}

TEST_F(TextReportTest, DaysOfAllEventsAreThoseOfThePeriod) {
    EXPECT_EQ(reportedDays(content), 31) << "without events too";
    content.periodEnd = test::utc(2024, 3, 1, 23, 59, 59);
    EXPECT_EQ(reportedDays(content), 1);
    content.periodEnd = test::utc(2024, 3, 7, 23, 59, 59);
    EXPECT_EQ(reportedDays(content), 7);
    content.periodEnd.reset();
    EXPECT_EQ(reportedDays(content), 0);
}

TEST_F(TextReportTest, DaysOfSelectedEventsGoFromTheFirstStartToTheLastEnd) {
    content.scope = ReportScope::SelectedEvents;
    EXPECT_EQ(reportedDays(content), 0) << "nothing selected";
    add(test::utc(2024, 3, 6, 9), test::utc(2024, 3, 6, 17), {});
    EXPECT_EQ(reportedDays(content), 1);
    add(test::utc(2024, 3, 4, 22), test::utc(2024, 3, 5, 2), {});
    EXPECT_EQ(reportedDays(content), 3) << "in any order";
    add(test::utc(2024, 3, 6, 20), test::utc(2024, 3, 7), {});
    EXPECT_EQ(reportedDays(content), 3) << "an end at midnight begins no day";
}

TEST_F(TextReportTest, DaysOfTwentyThreeAndTwentyFiveHoursCountOnce) {
    useZone("Europe/Berlin");
    // From 31 March, when clocks go forward, to the last second of that day.
    content.periodStart = test::utc(2024, 3, 30, 23);
    content.periodEnd = test::utc(2024, 3, 31, 21, 59, 59);
    EXPECT_EQ(reportedDays(content), 1);
    // March from its first day: 31 days less an hour.
    content.periodStart = test::utc(2024, 2, 29, 23);
    EXPECT_EQ(reportedDays(content), 31);
    // October, when clocks go back.
    content.periodStart = test::utc(2024, 9, 30, 22);
    content.periodEnd = test::utc(2024, 10, 31, 22, 59, 59);
    EXPECT_EQ(reportedDays(content), 31);
    content.periodStart = test::utc(2024, 10, 26, 22);
    content.periodEnd = test::utc(2024, 10, 27, 22, 59, 59);
    EXPECT_EQ(reportedDays(content), 1);
}

TEST_F(TextReportTest, DaysFollowAZoneWhoseClocksChangeByHalfAnHour) {
    useZone("Australia/Lord_Howe");
    // 7 April, when clocks go back from +11:00 to +10:30.
    content.periodStart = test::utc(2024, 4, 6, 13);
    content.periodEnd = test::utc(2024, 4, 7, 13, 29, 59);
    EXPECT_EQ(reportedDays(content), 1);
}

} // namespace quillet
