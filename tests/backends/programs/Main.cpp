#include "ScratchDesktop.h"
#include "support/ExpectedLog.h"
#include "support/OwnSession.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    quillet::test::leaveSession();
    qputenv("LC_ALL", "C.UTF-8");
    quillet::test::ScratchDesktop::setEnvironment();
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    quillet::test::failOnUnexpectedLog();
    return RUN_ALL_TESTS();
}
