#include "support/ExpectedLog.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    quillet::test::failOnUnexpectedLog();
    return RUN_ALL_TESTS();
}
