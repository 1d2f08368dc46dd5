#include "window/widgets/SheetFocus.h"

#include <QDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class SheetFocusTest : public testing::Test {
protected:
    SheetFocusTest() {
        window.show();
        activate(window);
    }

    /// As the window manager does it.
    static void activate(QWidget& widget) {
        widget.windowHandle()->requestActivate();
        QCoreApplication::processEvents();
    }
    static bool getsTheKeys(const QWidget& widget) {
        return QTest::qWaitFor(
            [&] { return QGuiApplication::focusWindow() == widget.windowHandle(); });
    }

    QWidget window;
    QDialog sheet{&window};
    SheetFocus sheetFocus;
};

} // namespace

TEST_F(SheetFocusTest, TheBlockedWindowHandsTheKeysToItsSheet) {
    sheet.open();
    activate(sheet);
    activate(window);
    EXPECT_TRUE(getsTheKeys(sheet));
}

TEST_F(SheetFocusTest, TheBlockedSheetHandsThemToItsAlert) {
    sheet.open();
    QMessageBox alert(&sheet);
    alert.open();
    activate(alert);
    activate(window);
    EXPECT_TRUE(getsTheKeys(alert));
    activate(sheet);
    EXPECT_TRUE(getsTheKeys(alert));
}

TEST_F(SheetFocusTest, AWindowBesideTheSheetKeepsThem) {
    QWidget other(&window, Qt::Window);
    sheet.open();
    other.show();
    activate(other);
    QTest::qWait(20);
    EXPECT_EQ(QGuiApplication::focusWindow(), other.windowHandle());
}

TEST_F(SheetFocusTest, AClosedSheetTakesNoKeys) {
    sheet.open();
    sheet.close();
    activate(window);
    QTest::qWait(20);
    EXPECT_EQ(QGuiApplication::focusWindow(), window.windowHandle());
}

} // namespace quillet
