#include "window/main/ActivationWatcher.h"

#include "support/Fakes.h"

#include <QApplication>
#include <QDialog>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class ActivationWatcherTest : public testing::Test {
protected:
    ActivationWatcherTest() {
        window.show();
        QCoreApplication::processEvents();
    }
    static void leave() { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); }
    void comeBack(std::chrono::milliseconds absence = ActivationWatcher::shortestAbsence) {
        clock.current += absence;
        Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
        QCoreApplication::processEvents();
    }
    /// One of the program's own, open as long as the test wants it.
    static void open(QDialog& dialog) {
        dialog.setModal(true);
        dialog.show();
        QCoreApplication::processEvents();
        ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
    }

    QWidget window;
    test::FakeClock clock;
    int returns = 0;
    std::function<void()> onReturn = [] {};
    ActivationWatcher watcher{clock, [this] {
                                  ++returns;
                                  onReturn();
                              }};
};

} // namespace

TEST_F(ActivationWatcherTest, TheStartIsNoReturn) {
    comeBack();
    EXPECT_EQ(returns, 0);
}

TEST_F(ActivationWatcherTest, EachReturnFromAnotherProgramIsToldOnce) {
    leave();
    EXPECT_EQ(returns, 0);
    comeBack();
    comeBack();
    EXPECT_EQ(returns, 1);
    leave();
    comeBack();
    EXPECT_EQ(returns, 2);
}

TEST_F(ActivationWatcherTest, TheProgramsOwnDialogsDoNotCount) {
    QDialog alert;
    open(alert);
    leave();
    comeBack();
    alert.close();
    leave();
    open(alert);
    comeBack();
    alert.close();
    comeBack();
    EXPECT_EQ(returns, 0);
    leave();
    comeBack();
    EXPECT_EQ(returns, 1);
}

TEST_F(ActivationWatcherTest, AFocusThatABusyWindowManagerTakesForAMomentIsNoReturn) {
    using namespace std::chrono_literals;
    leave();
    comeBack(499ms);
    EXPECT_EQ(returns, 0);
    comeBack(1h);
    EXPECT_EQ(returns, 0);
    leave();
    comeBack(500ms);
    EXPECT_EQ(returns, 1);
}

TEST_F(ActivationWatcherTest, AnAlertThatAReturnBringsUpBringsUpNoOther) {
    onReturn = [this] {
        // Some desktops take the focus away and give it back as the alert opens and closes.
        leave();
        QDialog alert;
        open(alert);
        comeBack();
        leave();
        alert.close();
        comeBack();
    };
    leave();
    comeBack();
    EXPECT_EQ(returns, 1);
}

} // namespace quillet
