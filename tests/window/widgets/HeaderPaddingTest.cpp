#include "window/WindowFixture.h"

#include <QHeaderView>

#include <optional>

namespace quillet {

namespace {

/// Events that are called as their column is, and take as many hours as theirs.
class HeaderPaddingTest : public test::WindowFixture {
protected:
    void SetUp() override {
        store.storedEvents = {event("w", "Title", 4, 9, 11)};
        open();
        settings.setObject("hoursColumnTitle", "2");
        window->resize(1400, 700);
        QApplication::processEvents();
    }
    void TearDown() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
    /// Where the outermost letters stand, counted from the left edge of the column.
    struct Ink {
        int first = 0;
        int last = 0;
    };
    /// Ink is what differs from the middle of the column, where neither text reaches.
    static std::optional<Ink> inkIn(const QImage& picture, const QRect& place) {
        constexpr int edge = 3;
        std::optional<Ink> ink;
        for (int x = place.left() + edge; x <= place.right() - edge; ++x) {
            for (int y = place.top() + edge; y <= place.bottom() - edge; ++y) {
                if (picture.pixel(x, y) != picture.pixel(place.center().x(), y)) {
                    ink = {ink ? ink->first : x - place.left(), x - place.left()};
                }
            }
        }
        return ink;
    }
    int sectionOf(const char* column) const {
        return table->horizontalHeader()->logicalIndex(columns.positionOf(column));
    }
    std::optional<Ink> inkOfHeader(const char* column) const {
        const QHeaderView& header = *table->horizontalHeader();
        const int section = sectionOf(column);
        const QRect place(header.sectionViewportPosition(section), 0, header.sectionSize(section),
                          header.height());
        return inkIn(header.viewport()->grab().toImage(), place);
    }
    std::optional<Ink> inkOfCell(const char* column) const {
        return inkIn(table->viewport()->grab().toImage(),
                     table->visualRect(model.index(0, sectionOf(column))));
    }
};

} // namespace

TEST_F(HeaderPaddingTest, ATitleBeginsWhereTheTextsOfItsColumnDo) {
    const auto header = inkOfHeader("title");
    const auto cell = inkOfCell("title");
    ASSERT_TRUE(header && cell);
    EXPECT_NEAR(header->first, cell->first, 1);
}

TEST_F(HeaderPaddingTest, ATitleOfFiguresEndsWhereTheyDo) {
    const auto header = inkOfHeader("hours");
    const auto cell = inkOfCell("hours");
    ASSERT_TRUE(header && cell);
    EXPECT_NEAR(header->last, cell->last, 1);
}

TEST_F(HeaderPaddingTest, WhereWritingRunsToTheLeftTheSidesAreExchanged) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    const auto header = inkOfHeader("title");
    const auto cell = inkOfCell("title");
    ASSERT_TRUE(header && cell);
    EXPECT_NEAR(header->last, cell->last, 1);
}

} // namespace quillet
