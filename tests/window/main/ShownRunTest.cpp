#include "window/main/ShownRun.h"

#include "window/main/DesktopDialogs.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

QProgressDialog* shownDialog(const QWidget& window) {
    auto* dialog = window.findChild<QProgressDialog*>("progress");
    return dialog != nullptr && dialog->isVisible() ? dialog : nullptr;
}

/// Longer than work may take unseen.
constexpr int longMilliseconds = 250;

} // namespace

TEST(ShownRunTest, ShortWorkIsNotShown) {
    QWidget window;
    window.show();
    ShownRun run("Working…", &window);
    EXPECT_TRUE(run.goOn(1000, 3000));
    EXPECT_TRUE(run.goOn(2000, 3000));
    EXPECT_EQ(shownDialog(window), nullptr);
}

TEST(ShownRunTest, LongWorkIsShownWithItsProgressAndClosesTheWindowToTheUser) {
    QWidget window;
    window.show();
    {
        ShownRun run("Working…", &window);
        EXPECT_TRUE(run.goOn(1000, 3000));
        QTest::qSleep(longMilliseconds);
        EXPECT_TRUE(run.goOn(2000, 3000));
        const QProgressDialog* dialog = shownDialog(window);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->labelText(), QStringLiteral("Working…"));
        EXPECT_EQ(dialog->value(), 2000);
        EXPECT_EQ(dialog->maximum(), 3000);
        EXPECT_TRUE(dialog->isModal());
        EXPECT_TRUE(run.goOn(3000, 3000));
    }
    EXPECT_EQ(shownDialog(window), nullptr);
}

TEST(ShownRunTest, TheProgramsDialogsShowTheProgressOverTheMainWindow) {
    QWidget window;
    window.show();
    DesktopDialogs dialogs;
    dialogs.setWindow(&window);
    const auto run = dialogs.begin("Working…");
    QTest::qSleep(longMilliseconds);
    EXPECT_TRUE(run->goOn(1000, 3000));
    EXPECT_NE(shownDialog(window), nullptr);
}

TEST(ShownRunTest, TheUserCanCancel) {
    QWidget window;
    window.show();
    ShownRun run("Working…", &window);
    QTest::qSleep(longMilliseconds);
    ASSERT_TRUE(run.goOn(1000, 3000));
    QProgressDialog* dialog = shownDialog(window);
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QPushButton*>()->click();
    EXPECT_FALSE(run.goOn(2000, 3000));
}

TEST(ShownRunTest, EscapeCancelsToo) {
    QWidget window;
    window.show();
    ShownRun run("Working…", &window);
    QTest::qSleep(longMilliseconds);
    ASSERT_TRUE(run.goOn(1000, 3000));
    QProgressDialog* dialog = shownDialog(window);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(run.goOn(2000, 3000));
}

} // namespace quillet
