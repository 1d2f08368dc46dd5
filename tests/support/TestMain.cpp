#include "support/ExpectedLog.h"
#include "support/OwnSession.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    quillet::test::leaveSession();
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    quillet::test::failOnUnexpectedLog();
    return RUN_ALL_TESTS();
}
