#include "window/widgets/MenuArrowRoom.h"

#include "window/widgets/PeriodPicker.h"

#include <QMenu>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quillet {

namespace {

QImage pictureOf(QToolButton& button, const QString& text, const QSize& size) {
    button.setText(text);
    button.resize(size);
    return button.grab().toImage();
}

/// Where the two differ in a column of pixels, from the left.
QList<int> differences(const QImage& one, const QImage& other) {
    QList<int> columns;
    for (int x = 0; x < one.width(); ++x) {
        for (int y = 0; y < one.height(); ++y) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                columns << x;
                break;
            }
        }
    }
    return columns;
}

/// The columns of pixels between the text and the arrow, in which neither of them stands.
int gapBetweenTextAndArrow(QToolButton& button) {
    const QString text = button.text();
    const QSize size = button.sizeHint();
    const QImage whole = pictureOf(button, text, size);
    const QImage arrowAlone = pictureOf(button, QString(), size);
    button.setMenu(nullptr);
    const QImage nothing = pictureOf(button, QString(), size);
    const QList<int> ofText = differences(whole, arrowAlone);
    const QList<int> ofArrow = differences(arrowAlone, nothing);
    if (ofText.isEmpty() || ofArrow.isEmpty()) {
        ADD_FAILURE() << "text and arrow are drawn";
        return 0;
    }
    return button.isRightToLeft() ? ofText.first() - ofArrow.last() - 1
                                  : ofArrow.first() - ofText.last() - 1;
}

} // namespace

TEST(MenuArrowRoomTest, KeepsTheTextOffTheArrow) {
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QMenu menu;
        QToolButton button;
        button.setStyle(new MenuArrowRoom(&button));
        button.setLayoutDirection(direction);
        button.setPopupMode(QToolButton::InstantPopup);
        button.setText(QStringLiteral("November"));
        button.setMenu(&menu);
        EXPECT_GE(gapBetweenTextAndArrow(button), 2) << direction;
    }
}

TEST(MenuArrowRoomTest, IsInTheHeadersOfThePeriodPickers) {
    const PeriodPicker picker(QStringLiteral("Start Date"), Qt::Monday, nullptr);
    const auto* month = picker.findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton"));
    ASSERT_NE(month, nullptr);
    ASSERT_NE(month->menu(), nullptr);
    EXPECT_NE(qobject_cast<const MenuArrowRoom*>(month->style()), nullptr);
}

} // namespace quillet
