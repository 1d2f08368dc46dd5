#include "support/ExpectedLog.h"
#include "support/OwnSession.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    quillet::test::leaveSession();
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    quillet::test::failOnUnexpectedLog();
    return RUN_ALL_TESTS();
}
