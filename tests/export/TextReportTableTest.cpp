#include "export/TextReportTable.h"

#include "TextReportFixture.h"
#include "eventtable/EventColumns.h"

#include <rapidcheck.h>

namespace quillet {

namespace {

class TextReportTableTest : public TextReportFixture {
protected:
    [[nodiscard]] QString table() const { return reportTable(content).value_or("cancelled"); }
    [[nodiscard]] QString summary() const {
        return reportSummaryRow(content, reportTotals(content));
    }
};

} // namespace

TEST_F(TextReportTableTest, StandsUnderTitlesAndALineOfDashes) {
    show({{"date", 8}, {"title", 10}, {"hours", 5}});
    add(90, "Planning");
    EXPECT_EQ(table(), "date     title      hours \n"
                       "--------------------------\n"
                       "3/4/24   Planning   1.5   \n");
}

TEST_F(TextReportTableTest, TitlesAreCutToTheirColumnsWithoutAnEllipsis) {
    show({{"date", 3}, {"title", 2}});
    content.columns[0].title = "Start Date";
    content.columns[1].title = "";
    EXPECT_EQ(table(), "Sta    \n-------\n");
    content.wrapping = CellWrapping::On;
    EXPECT_EQ(table(), "Sta    \n-------\n") << "titles are never wrapped";
}

TEST_F(TextReportTableTest, WithoutEventsHoldsTitlesAndDashesAlone) {
    show({{"title", 6}});
    EXPECT_EQ(table(), "title  \n-------\n");
}

TEST_F(TextReportTableTest, WithoutColumnsIsTwoLineFeedsAndOneForEachEvent) {
    EXPECT_EQ(table(), "\n\n");
    add(30);
    add(60);
    EXPECT_EQ(table(), "\n\n\n\n");
    content.wrapping = CellWrapping::On;
    EXPECT_EQ(table(), "\n\n\n\n");
}

TEST_F(TextReportTableTest, UnwrappedEveryEventIsOneLine) {
    show({{"title", 10}, {"hours", 4}});
    add(30, "Weekly planning meeting");
    add(60, "Call\nback");
    EXPECT_EQ(table(), "title      hour \n"
                       "----------------\n"
                       "Weekly ... 0.5  \n"
                       "Call back  1    \n");
}

TEST_F(TextReportTableTest, WrappedAnEventTakesTheLinesOfItsLongestCell) {
    content.wrapping = CellWrapping::On;
    show({{"hours", 4}, {"title", 10}, {"calendar", 5}});
    add(30, "Weekly planning meeting");
    add(60, "Call");
    EXPECT_EQ(table(), "hour title      calen \n"
                       "----------------------\n"
                       "0.5  Weekly     Work  \n"
                       "     planning         \n"
                       "     meeting          \n"
                       "1    Call       Work  \n");
}

TEST_F(TextReportTableTest, WrappedACellThatFillsItsColumnRepeatsItsTailBesideALongerOne) {
    content.wrapping = CellWrapping::On;
    show({{"hours", 3}, {"title", 5}});
    add(90, "Abcdefgh");
    EXPECT_EQ(table(), "hou title \n"
                       "----------\n"
                       "1.5 Abcd  \n"
                       "5   efgh  \n");
}

TEST_F(TextReportTableTest, WrappedACellThatFillsItsColumnNeedsNoFurtherLine) {
    content.wrapping = CellWrapping::On;
    show({{"hours", 3}, {"title", 5}});
    add(90, "Abcde");
    EXPECT_EQ(table(), "hou title \n----------\n1.5 Abcde \n");
}

TEST_F(TextReportTableTest, PercentSignsOfFreeTextsAreDoubledAndCountTwice) {
    show({{"title", 6}, {"notes", 4}, {"location", 4}, {"calendar", 4}, {"url", 4}});
    const Instant start = test::utc(2024, 3, 4, 9);
    add(start, start,
        {.calendar = test::calendarNamed("%w"),
         .title = "50% off",
         .location = "%l",
         .notes = "%n",
         .url = "a%20",
         .eventIdentifier = {}});
    EXPECT_EQ(table().section(u'\n', 2, 2), "50%... %%n  %%l  %%w  a%20 ");
    content.wrapping = CellWrapping::On;
    EXPECT_EQ(table().section(u'\n', 2, 2), "50%%   %%n  %%l  %%w  a%20 ");
}

TEST_F(TextReportTableTest, MissingTextsAreBlanks) {
    show({{"title", 4}, {"notes", 4}, {"location", 4}, {"url", 4}, {"cost", 4}});
    const Instant start = test::utc(2024, 3, 4, 9);
    add(start, start, {});
    EXPECT_EQ(table().section(u'\n', 2), "                         \n");
}

TEST_F(TextReportTableTest, AnUnknownColumnHasNoTitleAndNoCellsButItsDashes) {
    show({{"title", 6}, {"colour", 4}, {"hours", 3}});
    add(60, "Call");
    EXPECT_EQ(table(), "title       hou \n"
                       "----------------\n"
                       "Call   1   \n");
}

TEST_F(TextReportTableTest, NegativeNumbersAreShownWithoutTheirSign) {
    content.billing.periodStart = test::utc(2024, 3, 10);
    show({{"hours", 6}, {"minutes", 6}, {"duration", 6}});
    add(60);
    EXPECT_EQ(table().section(u'\n', 2), "134    8040   0h     \n");
    EXPECT_EQ(summary().section(u'\n', 1), "134    8040   0h     ");
}

TEST_F(TextReportTableTest, NumbersHaveTwoDecimalsAtMostAndTheLocalesSeparator) {
    show({{"hours", 8}});
    add(20);
    EXPECT_EQ(table().section(u'\n', 2), "0.33     \n");
    useZone("UTC", "de_DE");
    EXPECT_EQ(table().section(u'\n', 2), "0,33     \n");
}

TEST_F(TextReportTableTest, SummarySumsFourColumnsAndLeavesTheOthersBlank) {
    useSingleRate(100);
    show({{"title", 7}, {"hours", 5}, {"minutes", 7}, {"duration", 8}, {"cost", 9}, {"rate", 5}});
    add(90);
    add(45);
    EXPECT_EQ(summary(), "-----------------------------------------------\n"
                         "        2.25  135     2h 15m   $225.00         ");
}

TEST_F(TextReportTableTest, SummaryWithoutEventsIsOfZeros) {
    useSingleRate(100);
    show({{"hours", 5}, {"minutes", 7}, {"duration", 8}, {"cost", 9}});
    EXPECT_EQ(summary().section(u'\n', 1), "0     0       0h       $0.00     ");
}

TEST_F(TextReportTableTest, SummaryHasABlankCellForAnUnknownColumn) {
    show({{"colour", 3}, {"hours", 3}});
    add(60);
    EXPECT_EQ(summary(), "--------\n    1   ");
}

TEST_F(TextReportTableTest, SummaryWithoutColumnsIsOneLineFeed) {
    add(60);
    EXPECT_EQ(summary(), "\n");
}

TEST_F(TextReportTableTest, SummaryCutsLongSumsLikeCellsAndNeverGoesOn) {
    show({{"minutes", 4}, {"duration", 5}});
    add(12'345);
    EXPECT_EQ(summary().section(u'\n', 1), "1234 20... ") << "12345 and 205h 45m";
    content.wrapping = CellWrapping::On;
    EXPECT_EQ(summary().section(u'\n', 1), "123  205h  ");
}

TEST_F(TextReportTableTest, SummaryOfACalendarWithoutARateIsNoNumber) {
    content.billing.isMoneyOn = true;
    content.billing.isSingleRate = false;
    show({{"cost", 6}, {"rate", 6}});
    add(60);
    EXPECT_EQ(table().section(u'\n', 2),
              formats->currency(Decimal::notANumber()).leftJustified(7) +
                  formats->currency(Decimal::notANumber()).leftJustified(7) + "\n");
    EXPECT_TRUE(summary().section(u'\n', 1).contains("NaN"));
}

TEST_F(TextReportTableTest, EveryLineHasTheSameLength) {
    const std::vector<QString> pieces{"word", " ", "\n", "%", "\U0001F600", "averylongword"};
    const auto text = [&] {
        QString joined;
        for (const QString& piece :
             *rc::gen::container<std::vector<QString>>(rc::gen::elementOf(pieces))) {
            joined += piece;
        }
        return joined;
    };
    EXPECT_TRUE(rc::check([&] {
        events.clear();
        content.columns.clear();
        qsizetype width = 0;
        for (const EventColumn& column : eventColumns()) {
            if (*rc::gen::arbitrary<bool>()) {
                const auto length = *rc::gen::inRange<qsizetype>(2, 20);
                content.columns.push_back({QString::fromLatin1(column.identifier),
                                           column.title.firstRunValue().toString(), length});
                width += length + 1;
            }
        }
        content.wrapping = *rc::gen::element(CellWrapping::Off, CellWrapping::On);
        const auto count = *rc::gen::inRange(1, 4);
        for (int number = 0; number < count; ++number) {
            add(*rc::gen::inRange(0, 3000), text());
        }
        QStringList lines = table().split(u'\n');
        RC_ASSERT(lines.takeLast().isEmpty());
        RC_ASSERT(lines.size() >= 2 + count);
        RC_ASSERT(content.wrapping == CellWrapping::On || lines.size() == 2 + count);
        lines << summary().split(u'\n');
        for (const QString& line : lines) {
            RC_ASSERT(line.size() == width);
        }
    }));
}

TEST_F(TextReportTableTest, AThousandEventsAreAskedAboutAtATime) {
    show({{"hours", 2}});
    std::vector<std::size_t> rows(2500, 0);
    add(60);
    content.events = ExportedEvents(std::make_shared<const EventList>(events), rows);
    std::vector<std::pair<std::size_t, std::size_t>> asked;
    const auto finished = reportTable(content, [&](std::size_t done, std::size_t all) {
        asked.emplace_back(done, all);
        return ExportAnswer::GoOn;
    });
    EXPECT_EQ(asked,
              (std::vector<std::pair<std::size_t, std::size_t>>{{1000, 2500}, {2000, 2500}}));
    EXPECT_EQ(finished.value_or("").count(u'\n'), 2502);
}

TEST_F(TextReportTableTest, ACancelledTableIsNone) {
    show({{"hours", 2}});
    add(60);
    content.events = ExportedEvents(std::make_shared<const EventList>(events),
                                    std::vector<std::size_t>(5000, 0));
    int asked = 0;
    const auto cancelled = reportTable(content, [&](std::size_t, std::size_t) {
        return ++asked == 2 ? ExportAnswer::Cancel : ExportAnswer::GoOn;
    });
    EXPECT_FALSE(cancelled.has_value());
    EXPECT_EQ(asked, 2);
}

} // namespace quillet
