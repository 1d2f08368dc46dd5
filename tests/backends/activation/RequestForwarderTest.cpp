#include "backends/activation/RequestForwarder.h"

#include "RunningProgram.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace quillet {

namespace {

using Outcome = RequestForwarder::Outcome;

class RequestForwarderTest : public testing::Test {
protected:
    Outcome forward(std::chrono::milliseconds patience = 10s) {
        RequestForwarder forwarder(bus.connection(), [this] {
            ++starts;
            return onStart();
        });
        return forwarder.forward({.addresses = {"file:///a.ics"}, .action = {}}, "click", patience);
    }

    PrivateBus bus;
    int starts = 0;
    std::function<bool()> onStart = [] { return false; };
};

const QStringList theRequest{"open file:///a.ics click"};

} // namespace

TEST_F(RequestForwarderTest, TheRunningProgramGetsIt) {
    RunningProgram program(bus);
    EXPECT_EQ(forward(), Outcome::Delivered);
    EXPECT_EQ(program.requests(1), theRequest);
    EXPECT_EQ(starts, 0);
}

TEST_F(RequestForwarderTest, AProgramIsStartedWhenNoneRuns) {
    std::unique_ptr<RunningProgram> program;
    onStart = [&] {
        program = std::make_unique<RunningProgram>(bus);
        return true;
    };
    EXPECT_EQ(forward(), Outcome::Delivered);
    EXPECT_EQ(program->requests(1), theRequest);
    EXPECT_EQ(starts, 1);
}

TEST_F(RequestForwarderTest, AStartThatTakesLongIsWaitedForAndNotRepeated) {
    std::unique_ptr<RunningProgram> program;
    std::unique_ptr<QThread> slowStart;
    onStart = [&] {
        slowStart.reset(QThread::create([&] {
            QThread::msleep(200);
            program = std::make_unique<RunningProgram>(bus);
        }));
        slowStart->start();
        return true;
    };
    EXPECT_EQ(forward(), Outcome::Delivered);
    slowStart->wait();
    EXPECT_EQ(program->requests(1), theRequest);
    EXPECT_EQ(starts, 1);
}

TEST_F(RequestForwarderTest, AfterOneThatIsEndingAnotherIsStarted) {
    auto ending = std::make_unique<RunningProgram>(bus);
    ending->endSoon();
    const std::unique_ptr<QThread> end(QThread::create([&] {
        QThread::msleep(200);
        ending->end();
    }));
    end->start();
    std::unique_ptr<RunningProgram> next;
    onStart = [&] {
        next = std::make_unique<RunningProgram>(bus);
        return true;
    };
    EXPECT_EQ(forward(), Outcome::Delivered);
    end->wait();
    EXPECT_EQ(next->requests(1), theRequest);
    EXPECT_EQ(starts, 1);
}

TEST_F(RequestForwarderTest, SaysWhenTheProgramCannotBeStarted) {
    QElapsedTimer watch;
    watch.start();
    EXPECT_EQ(forward(), Outcome::NoProgram);
    EXPECT_LT(watch.elapsed(), 5'000);
}

TEST_F(RequestForwarderTest, DoesNotWaitForeverForAProgramThatEndedAgain) {
    onStart = [] { return true; };
    EXPECT_EQ(forward(300ms), Outcome::NoProgram);
    EXPECT_EQ(starts, 1);
}

TEST_F(RequestForwarderTest, WithoutABusNothingIsStarted) {
    RequestForwarder forwarder(QDBusConnection::connectToBus("unix:path=/nowhere/at/all", "none"),
                               [this] { return ++starts > 0; });
    EXPECT_EQ(forwarder.forward({}, {}, 10s), Outcome::NoBus);
    EXPECT_EQ(starts, 0);
}

} // namespace quillet
