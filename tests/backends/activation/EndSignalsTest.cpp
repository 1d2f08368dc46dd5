#include "backends/activation/EndSignals.h"

#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <csignal>
#include <thread>

namespace quillet {

TEST(EndSignalsTest, EachOfThemCallsBackFromTheEventLoop) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        int calls = 0;
        const EndSignals signals([&] { ++calls; });
        std::raise(signal);
        EXPECT_EQ(calls, 0) << "not inside the handler";
        EXPECT_TRUE(test::waitUntil([&] { return calls > 0; }));
        EXPECT_EQ(calls, 1);
    }
}

TEST(EndSignalsTest, ASignalThatTheStarterIgnoresStaysIgnored) {
    const auto before = std::signal(SIGHUP, SIG_IGN);
    int calls = 0;
    {
        const EndSignals signals([&] { ++calls; });
        std::raise(SIGHUP);
        EXPECT_FALSE(test::waitUntil([&] { return calls > 0; }, 100));
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
}

TEST(EndSignalsDeathTest, TheSecondEndsAProgramThatDoesNotEnd) {
    EXPECT_EXIT(
        {
            const EndSignals signals([] {});
            std::raise(SIGTERM);
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignalsDeathTest, AnEndThatTakesTooLongIsCutShort) {
    EXPECT_EXIT(
        {
            endWithin(std::chrono::milliseconds(20), 7);
            std::this_thread::sleep_for(std::chrono::seconds(20));
        },
        testing::ExitedWithCode(7), "");
}

TEST(EndSignalsDeathTest, AfterwardsTheyEndTheProcessAgain) {
    EXPECT_EXIT(
        {
            {
                const EndSignals signals([] {});
            }
            std::raise(SIGINT);
        },
        testing::KilledBySignal(SIGINT), "");
}

} // namespace quillet
