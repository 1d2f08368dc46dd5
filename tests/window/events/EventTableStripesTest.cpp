#include "window/WindowFixture.h"

#include <QHeaderView>

namespace quillet {

namespace {

class EventTableStripesTest : public test::WindowFixture {
protected:
    EventTableStripesTest() {
        open();
        for (int position = 1; position < columns.columnCount(); ++position) {
            columns.columnAt(position).setHidden(true);
        }
        window->resize(1200, 800);
        QApplication::processEvents();
    }

    /// What stands in a row, so far from the edge at which the last column ends.
    QColor colorBeside(int row) {
        const QRect cell = table->visualRect(table->model()->index(row, 0));
        constexpr int distance = 20;
        const int x = table->isRightToLeft() ? cell.left() - distance : cell.right() + distance;
        return table->viewport()->grab().toImage().pixelColor(x, cell.top() + 2);
    }
    QColor color(QPalette::ColorRole role) const {
        return table->palette().color(
            table->isActiveWindow() ? QPalette::Active : QPalette::Inactive, role);
    }
};

} // namespace

TEST_F(EventTableStripesTest, GoOnBesideTheLastColumn) {
    ASSERT_NE(color(QPalette::Base), color(QPalette::AlternateBase));
    EXPECT_EQ(colorBeside(0), color(QPalette::Base));
    EXPECT_EQ(colorBeside(1), color(QPalette::AlternateBase));
    EXPECT_EQ(colorBeside(2), color(QPalette::Base));
}

TEST_F(EventTableStripesTest, ShowWhatIsSelected) {
    table->selectRow(2);
    EXPECT_EQ(colorBeside(1), color(QPalette::AlternateBase));
    EXPECT_EQ(colorBeside(2), color(QPalette::Highlight));
    table->clearSelection();
    EXPECT_EQ(colorBeside(2), color(QPalette::Base));
}

TEST_F(EventTableStripesTest, RunToTheLeftWhereWritingDoes) {
    window->setLayoutDirection(Qt::RightToLeft);
    table->setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_EQ(colorBeside(1), color(QPalette::AlternateBase));
}

TEST_F(EventTableStripesTest, EndWithTheLastEvent) {
    const QRect last = table->visualRect(table->model()->index(2, 0));
    const QImage picture = table->viewport()->grab().toImage();
    for (int y = last.bottom() + 1; y < picture.height(); ++y) {
        ASSERT_EQ(picture.pixelColor(picture.width() - 2, y), color(QPalette::Base)) << y;
    }
}

} // namespace quillet
