#include "window/widgets/FoldingRow.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <tuple>

namespace quillet::test {

namespace {

class FoldingRowTest : public testing::Test {
protected:
    FoldingRowTest() {
        for (QLabel* label : {first, second, third}) {
            label->setFixedSize(50, 20);
            row.addWidget(*label);
        }
        row.resize(1000, 20);
        row.show();
    }
    [[nodiscard]] std::vector<bool> shownAt(int width) {
        row.resize(width, 20);
        return {first->isVisible(), second->isVisible(), third->isVisible()};
    }

    QLabel* first = new QLabel;
    QLabel* second = new QLabel;
    QLabel* third = new QLabel;
    FoldingRow row;
    int gap = row.fontMetrics().height();
};

TEST_F(FoldingRowTest, AsksForRoomForAllAndMakesDoWithNone) {
    EXPECT_EQ(row.sizeHint(), QSize(150 + 2 * gap, 20));
    EXPECT_EQ(row.minimumSizeHint(), QSize(0, 20));
}

TEST_F(FoldingRowTest, TheLastOnesGoFirstAndComeBack) {
    EXPECT_EQ(shownAt(150 + 2 * gap), (std::vector{true, true, true}));
    EXPECT_EQ(shownAt(149 + 2 * gap), (std::vector{true, true, false}));
    EXPECT_EQ(shownAt(99 + gap), (std::vector{true, false, false}));
    EXPECT_EQ(shownAt(49), (std::vector{false, false, false}));
    EXPECT_EQ(shownAt(400), (std::vector{true, true, true}));
}

TEST_F(FoldingRowTest, StandsInTheDirectionOfReading) {
    std::ignore = shownAt(400);
    EXPECT_LT(first->x(), second->x());
    row.setLayoutDirection(Qt::RightToLeft);
    std::ignore = shownAt(401);
    EXPECT_GT(first->x(), second->x());
    EXPECT_EQ(first->geometry().right(), 400);
}

} // namespace

} // namespace quillet::test
