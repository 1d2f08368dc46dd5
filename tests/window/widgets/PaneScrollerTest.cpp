#include "window/widgets/PaneScroller.h"

#include "window/WindowFixture.h"

#include "window/period/InspectorPane.h"

#include <QCalendarWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>

namespace quillet {

namespace {

/// A pane that needs as much room as it is told.
class PaneScrollerTest : public testing::Test {
protected:
    PaneScrollerTest() {
        auto* layout = new QVBoxLayout(content);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(needy);
    }
    [[nodiscard]] QSize screenSize() const { return scroller.screen()->availableSize(); }

    QWidget* content = new QWidget;
    QWidget* needy = new QWidget(content);
    PaneScroller scroller{*content, nullptr};
};

class SmallScreenTest : public test::WindowFixture {
protected:
    bool isInView(const QWidget& control) const {
        const auto scrollers = window->findChildren<PaneScroller*>();
        return std::ranges::all_of(scrollers, [&control](const PaneScroller* scroller) {
            const QWidget& view = *scroller->viewport();
            return !view.isAncestorOf(&control) ||
                   view.rect().contains(QRect(control.mapTo(&view, QPoint()), control.size()));
        });
    }
};

} // namespace

TEST_F(PaneScrollerTest, WhatTheScreenHoldsIsNeverScrolled) {
    needy->setMinimumSize(300, 200);
    QApplication::processEvents();
    EXPECT_EQ(scroller.minimumSizeHint(), QSize(300, 200));
    scroller.resize(300, 200);
    scroller.show();
    QApplication::processEvents();
    EXPECT_EQ(scroller.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(scroller.verticalScrollBar()->maximum(), 0);
}

TEST_F(PaneScrollerTest, WhatTheScreenDoesNotHoldIsScrolledToItsEnd) {
    needy->setMinimumSize(screenSize() * 2);
    QApplication::processEvents();
    EXPECT_LT(scroller.minimumSizeHint().width(), screenSize().width());
    EXPECT_LT(scroller.minimumSizeHint().height(), screenSize().height());
    scroller.resize(scroller.minimumSizeHint());
    scroller.show();
    QApplication::processEvents();
    EXPECT_EQ(needy->size(), screenSize() * 2);
    EXPECT_EQ(scroller.horizontalScrollBar()->maximum(),
              needy->width() - scroller.viewport()->width());
    EXPECT_EQ(scroller.verticalScrollBar()->maximum(),
              needy->height() - scroller.viewport()->height());
}

TEST_F(PaneScrollerTest, TheBarOfATallPaneTakesNothingOfItsWidth) {
    needy->setMinimumSize(200, screenSize().height() * 2);
    QApplication::processEvents();
    scroller.resize(scroller.minimumSizeHint());
    scroller.show();
    QApplication::processEvents();
    EXPECT_GT(scroller.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(scroller.horizontalScrollBar()->maximum(), 0);
}

TEST_F(PaneScrollerTest, AWindowGrowsWithWhatItsPanesNeed) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* grown = new QWidget;
    auto* within = new QVBoxLayout(grown);
    auto* label = new QWidget(grown);
    within->addWidget(label);
    layout->addWidget(new PaneScroller(*grown, &window));
    window.resize(100, 100);
    window.show();
    label->setMinimumSize(300, 200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.width() >= 300 && window.height() >= 200; }));
}

TEST_F(SmallScreenTest, TheWindowFitsItWhateverItsPanesNeed) {
    open();
    const QSize screen = window->screen()->availableSize();
    auto* pane = window->findChild<InspectorPane*>();
    pane->setMinimumSize(screen);
    window->resize(screen - QSize(0, 40));
    QApplication::processEvents();
    EXPECT_EQ(window->size(), screen - QSize(0, 40));
    EXPECT_GE(pane->height(), screen.height()) << "nothing of it is lost";
}

TEST_F(SmallScreenTest, TheTabKeyBringsWhatItReachesIntoView) {
    open();
    const QSize screen = window->screen()->availableSize();
    named<QCalendarWidget>("Start Date")->setMinimumHeight(screen.height());
    window->resize(screen - QSize(0, 40));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QApplication::processEvents();
    const QWidget* const end = named<QCalendarWidget>("End Date")->focusProxy();
    ASSERT_NE(window->focusWidget(), end);
    EXPECT_FALSE(isInView(*end));
    // From outside, past the toolbar.
    for (int step = 0; step < 100 && window->focusWidget() != end; ++step) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Backtab);
    }
    ASSERT_EQ(window->focusWidget(), end);
    EXPECT_TRUE(isInView(*end));
}

} // namespace quillet
