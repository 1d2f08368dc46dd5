#include "platform/OneShotTimer.h"
#include "platform/SerialQueue.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <vector>

namespace quillet {

namespace {

/// Lets the event loop run until the condition holds; false after ten seconds.
bool waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 10'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return condition();
}

} // namespace

TEST(QueuesTest, TheBackgroundQueueRunsOneTaskAfterTheOtherInOrder) {
    const auto queue = makeBackgroundQueue("test.queue");
    std::vector<int> order;
    std::promise<void> finished;
    for (int task = 0; task < 100; ++task) {
        queue->async([&order, task] { order.push_back(task); });
    }
    queue->async([&] { finished.set_value(); });
    finished.get_future().wait();
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

TEST(QueuesTest, TheBackgroundQueueDoesNotRunOnTheCallersThread) {
    const auto queue = makeBackgroundQueue("test.queue");
    std::promise<QThread*> thread;
    queue->async([&] { thread.set_value(QThread::currentThread()); });
    EXPECT_NE(thread.get_future().get(), QThread::currentThread());
}

TEST(QueuesTest, TheMainQueueRunsLaterOnTheMainThread) {
    const auto background = makeBackgroundQueue("test.queue");
    const auto main = makeMainQueue();
    std::atomic<QThread*> thread = nullptr;
    background->async([&] { main->async([&] { thread = QThread::currentThread(); }); });
    EXPECT_TRUE(waitUntil([&] { return thread != nullptr; }));
    EXPECT_EQ(thread, QCoreApplication::instance()->thread());
}

TEST(QueuesTest, EachStartOfATimerCallsOnce) {
    const auto timer = makeOneShotTimer();
    int calls = 0;
    timer->start(0.0, [&] { ++calls; });
    timer->start(0.02, [&] { calls += 10; });
    EXPECT_TRUE(waitUntil([&] { return calls == 11; }));
}

TEST(QueuesTest, ADestroyedTimerCallsNobody) {
    auto timer = makeOneShotTimer();
    const auto later = makeOneShotTimer();
    int calls = 0;
    bool isOver = false;
    timer->start(0.0, [&] { ++calls; });
    timer.reset();
    later->start(0.03, [&] { isOver = true; });
    EXPECT_TRUE(waitUntil([&] { return isOver; }));
    EXPECT_EQ(calls, 0);
}

} // namespace quillet
