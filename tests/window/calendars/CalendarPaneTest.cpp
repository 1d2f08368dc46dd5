#include "window/WindowFixture.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTableView>
#include <QTest>

namespace quillet {

namespace {

class CalendarPaneTest : public test::WindowFixture {
protected:
    void SetUp() override {
        open();
        list = named<QTableView>("Calendars");
    }
    /// As the desktop tells of a second click that comes quickly.
    void clickAgain(const QPoint& position) const {
        for (const QEvent::Type type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, position, list->viewport()->mapToGlobal(position),
                              Qt::LeftButton,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              Qt::ControlModifier);
            QApplication::sendEvent(list->viewport(), &event);
        }
    }
    [[nodiscard]] QPoint tickOf(int row) const {
        QStyleOptionViewItem option;
        option.initFrom(list);
        option.rect = list->visualRect(list->model()->index(row, 0));
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        return list->style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list)
            .center();
    }
    [[nodiscard]] std::string ticks() const {
        std::string result;
        for (std::size_t row = 0; row < calendars.arrangedCount(); ++row) {
            result += calendars.arranged(row).isSelected ? 'x' : '-';
        }
        return result;
    }

    QTableView* list = nullptr;
};

} // namespace

TEST_F(CalendarPaneTest, AClickOnATickTurnsThatOneAround) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, tickOf(1));
    EXPECT_EQ(ticks(), "x-");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, tickOf(1));
    EXPECT_EQ(ticks(), "xx");
}

TEST_F(CalendarPaneTest, ControlClicksInQuickSuccessionEachCount) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, tickOf(1));
    EXPECT_EQ(ticks(), "--");
    clickAgain(tickOf(1));
    EXPECT_EQ(ticks(), "xx");
}

TEST_F(CalendarPaneTest, AControlClickOnACalendarThatIsNotTickedTicksAll) {
    calendars.setSelected(0, false);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, tickOf(0));
    EXPECT_EQ(ticks(), "xx");
    ASSERT_EQ(calendars.selectedRows(), std::vector<std::size_t>{0});
}

} // namespace quillet
