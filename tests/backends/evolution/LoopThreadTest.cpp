#include "backends/evolution/Glib.h"

#include <QElapsedTimer>
#include <QSemaphore>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace quillet::test {

namespace {

/// Says on which thread it ended.
struct Resident {
    explicit Resident(std::thread::id& endedOn, QSemaphore& ended)
        : endedOn_(endedOn)
        , ended_(ended) {}
    Resident(const Resident&) = delete;
    Resident& operator=(const Resident&) = delete;
    ~Resident() {
        endedOn_ = std::this_thread::get_id();
        ended_.release();
    }

private:
    std::thread::id& endedOn_;
    QSemaphore& ended_;
};

class LoopThreadTest : public testing::Test {
protected:
    std::thread::id begunOn;
    std::thread::id endedOn;
    QSemaphore ended;
};

} // namespace

TEST_F(LoopThreadTest, whatLivesOnTheThreadEndsOnItBeforeTheOwnerGoesOn) {
    QSemaphore done;
    {
        LoopThread thread([this] {
            begunOn = std::this_thread::get_id();
            return std::make_shared<Resident>(endedOn, ended);
        });
        thread.post([&] { done.release(); });
        ASSERT_TRUE(done.tryAcquire(1, 5000));
    }
    EXPECT_TRUE(ended.tryAcquire());
    EXPECT_EQ(endedOn, begunOn);
    EXPECT_NE(endedOn, std::this_thread::get_id());
}

TEST_F(LoopThreadTest, aThreadThatHangsIsLeftToItselfAndEndsWhenItCan) {
    QSemaphore hanging;
    QSemaphore goOn;
    QElapsedTimer timer;
    {
        LoopThread thread([this] { return std::make_shared<Resident>(endedOn, ended); });
        thread.post([&] {
            hanging.release();
            goOn.acquire();
        });
        ASSERT_TRUE(hanging.tryAcquire(1, 5000));
        timer.start();
    }
    EXPECT_GE(timer.elapsed(), 900);
    EXPECT_LT(timer.elapsed(), 3000);
    EXPECT_FALSE(ended.tryAcquire());
    goOn.release();
    EXPECT_TRUE(ended.tryAcquire(1, 5000));
}

TEST_F(LoopThreadTest, aTimerThatIsStartedAgainOrStoppedDoesNotComeForTheFirstStart) {
    using namespace std::chrono_literals;
    std::atomic<int> early = 0;
    QSemaphore late;
    LoopTimer timer;
    LoopTimer stopped;
    {
        LoopThread thread([this] { return std::make_shared<Resident>(endedOn, ended); });
        thread.post([&] {
            timer.start(1ms, [&] { ++early; });
            stopped.start(1ms, [&] { ++early; });
            stopped.stop();
            timer.start(50ms, [&] { late.release(); });
        });
        EXPECT_TRUE(late.tryAcquire(1, 5000));
    }
    EXPECT_EQ(early, 0);
    EXPECT_FALSE(timer.isRunning());
}

} // namespace quillet::test
