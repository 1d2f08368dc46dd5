#include "eventtable/ColumnTable.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

class ColumnTableTest : public testing::Test {
protected:
    [[nodiscard]] std::string order(int count) const {
        QStringList identifiers;
        for (int position = 0; position < count; ++position) {
            identifiers << table.columnAt(position).identifier();
        }
        return identifiers.join(u' ').toStdString();
    }

    test::MemorySettings settings;
    ColumnTable table{settings};
};

} // namespace

TEST_F(ColumnTableTest, BeginsWithAllColumnsInTheirOrderShownAtTheirWidths) {
    ASSERT_EQ(table.columnCount(), static_cast<int>(eventColumns().size()));
    for (int position = 0; position < table.columnCount(); ++position) {
        const TableColumn& column = table.columnAt(position);
        EXPECT_EQ(column.known(), &eventColumns()[static_cast<std::size_t>(position)]);
        EXPECT_EQ(column.widthPoints(), column.known()->placement.widthPoints);
        EXPECT_FALSE(column.isHidden());
    }
}

TEST_F(ColumnTableTest, AMovedColumnIsTakenOutAndPutInAndTold) {
    std::vector<std::pair<int, int>> moves;
    QObject::connect(&table, &ColumnTable::columnMoved, &table,
                     [&](int from, int to) { moves.emplace_back(from, to); });
    table.moveColumn(0, 2);
    EXPECT_EQ(order(4), "hours title date notes");
    table.moveColumn(3, 1);
    EXPECT_EQ(order(4), "hours notes title date");
    table.moveColumn(1, 1);
    EXPECT_EQ(moves, (std::vector<std::pair<int, int>>{{0, 2}, {3, 1}}));
    EXPECT_EQ(table.positionOf("date"), 3);
    EXPECT_EQ(table.positionOf("colour"), -1);
}

TEST_F(ColumnTableTest, WidthsAreToldOfShownColumnsAndKeptOfHiddenOnes) {
    int resizes = 0;
    QObject::connect(&table, &ColumnTable::columnResized, &table, [&] { ++resizes; });
    TableColumn& title = table.column("title");
    title.setWidthPoints(80.7);
    EXPECT_EQ(resizes, 1);
    title.setHidden(true);
    EXPECT_EQ(title.widthPoints(), 80.7);
    title.setWidthPoints(55);
    title.setHidden(false);
    EXPECT_EQ(title.widthPoints(), 55);
    EXPECT_EQ(resizes, 1) << "hiding and showing are told apart";
}

TEST_F(ColumnTableTest, AColumnTellsOnceThatItIsHidden) {
    TableColumn& title = table.column("title");
    int changes = 0;
    QObject::connect(&title, &TableColumn::isHiddenChanged, &title, [&] { ++changes; });
    title.setHidden(true);
    title.setHidden(true);
    EXPECT_EQ(changes, 1);
    title.setHidden(false);
    EXPECT_EQ(changes, 2);
}

TEST_F(ColumnTableTest, HeadersShowTheTitlesAsTheyAreSetNow) {
    EXPECT_EQ(table.column("weekday").headerTitle(), "") << "before the first run";
    settings.setObject("startWeekdayColumnTitle", "Day");
    EXPECT_EQ(table.column("weekday").headerTitle(), "Day");
    settings.setObject("startWeekdayColumnTitle", "");
    EXPECT_EQ(table.column("weekday").headerTitle(), "");
}

TEST_F(ColumnTableTest, AColumnThatNobodyKnowsHasNoTitle) {
    const ColumnTable other(settings, {"title", "colour"});
    ASSERT_EQ(other.columnCount(), 2);
    EXPECT_EQ(other.columnAt(1).identifier(), "colour");
    EXPECT_EQ(other.columnAt(1).known(), nullptr);
    EXPECT_EQ(other.columnAt(1).headerTitle(), QString());
}

} // namespace quillet
