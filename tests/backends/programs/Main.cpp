#include "ScratchDesktop.h"
#include "support/ExpectedLog.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // No program of the developer's own session is to answer.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    qputenv("LC_ALL", "C.UTF-8");
    quillet::test::ScratchDesktop::setEnvironment();
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    quillet::test::failOnUnexpectedLog();
    return RUN_ALL_TESTS();
}
