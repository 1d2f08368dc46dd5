#include "window/widgets/FittingToolBar.h"

#include <QAction>
#include <QMainWindow>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quillet {

TEST(FittingToolBarTest, KeepsItsLastItemInSightByDroppingTheTexts) {
    QMainWindow window;
    auto* bar = new FittingToolBar(QStringLiteral("Tools"));
    window.addToolBar(bar);
    const QPixmap symbol(16, 16);
    for (const char* text : {"Previous", "Current", "Next", "Something Longer"}) {
        bar->addAction(QIcon(symbol), QString::fromLatin1(text));
    }
    QWidget* last = bar->widgetForAction(bar->actions().last());
    window.resize(900, 200);
    window.show();
    QApplication::processEvents();
    const int needed = bar->sizeHint().width();
    const auto styleAt = [&](int width) {
        window.resize(width, 200);
        QApplication::processEvents();
        EXPECT_TRUE(last->isVisible()) << width;
        return bar->toolButtonStyle();
    };
    EXPECT_EQ(styleAt(needed), Qt::ToolButtonTextBesideIcon);
    EXPECT_EQ(styleAt(needed - 1), Qt::ToolButtonIconOnly);
    EXPECT_EQ(styleAt(needed / 2), Qt::ToolButtonIconOnly);
    EXPECT_EQ(styleAt(needed), Qt::ToolButtonTextBesideIcon);
}

TEST(FittingToolBarTest, MeasuresItsTextsAgainInAnotherFont) {
    QMainWindow window;
    auto* bar = new FittingToolBar(QStringLiteral("Tools"));
    window.addToolBar(bar);
    for (const char* text : {"Previous", "Current", "Next", "Something Longer"}) {
        bar->addAction(QIcon(QPixmap(16, 16)), QString::fromLatin1(text));
    }
    window.resize(bar->sizeHint().width() + 10, 200);
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QFont font = bar->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    bar->setFont(font);
    QApplication::processEvents();
    window.resize(window.width() + 1, 200);
    QApplication::processEvents();
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
}

} // namespace quillet
