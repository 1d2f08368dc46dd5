#include "window/widgets/BusyIndicator.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include <cstdlib>

namespace quillet {

namespace {

class BusyIndicatorTest : public testing::Test {
protected:
    BusyIndicatorTest() {
        window.menuBar()->addMenu("File");
        content = new QWidget(&window);
        window.setCentralWidget(content);
        indicator = new BusyIndicator(window);
        window.resize(600, 400);
        window.show();
    }
    [[nodiscard]] bool isCentred() const {
        const QPoint apart = indicator->geometry().center() - content->geometry().center();
        return std::abs(apart.x()) <= 1 && std::abs(apart.y()) <= 1;
    }
    void startAndWait() const {
        indicator->start();
        ASSERT_TRUE(QTest::qWaitFor([&] { return indicator->isVisible(); }));
    }

    QMainWindow window;
    QWidget* content = nullptr;
    BusyIndicator* indicator = nullptr;
};

} // namespace

TEST_F(BusyIndicatorTest, StandsInTheMiddleOfTheContentAboveAllElse) {
    startAndWait();
    ASSERT_GT(content->geometry().top(), 0) << "below the menus";
    EXPECT_TRUE(isCentred());
    EXPECT_EQ(window.childAt(content->geometry().center()), indicator);
}

TEST_F(BusyIndicatorTest, StaysInTheMiddleWhenTheWindowIsResized) {
    startAndWait();
    window.resize(800, 700);
    ASSERT_TRUE(QTest::qWaitFor([&] { return content->width() == 800; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return isCentred(); }));
}

TEST_F(BusyIndicatorTest, ShortWorkIsNotShown) {
    indicator->start();
    EXPECT_FALSE(indicator->isVisible());
    indicator->stop();
    // Longer than work may take unseen.
    QTest::qWait(300);
    EXPECT_FALSE(indicator->isVisible());
}

TEST_F(BusyIndicatorTest, StopsAtOnceAndStartsAgain) {
    startAndWait();
    indicator->start();
    EXPECT_TRUE(indicator->isVisible()) << "started twice";
    indicator->stop();
    EXPECT_FALSE(indicator->isVisible());
    startAndWait();
}

} // namespace quillet
