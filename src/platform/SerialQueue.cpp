#include "platform/SerialQueue.h"

#include <QCoreApplication>

#include <pthread.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace quillet {

namespace {

class BackgroundQueue final : public SerialQueue {
public:
    explicit BackgroundQueue(const QString& label)
        : thread_([this] { run(); }) {
        constexpr qsizetype longestName = 15;
        pthread_setname_np(thread_.native_handle(), label.left(longestName).toLatin1().constData());
    }
    ~BackgroundQueue() override {
        {
            const std::lock_guard guard(mutex_);
            isEnding_ = true;
        }
        wakeUp_.notify_one();
        thread_.join();
    }
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;

    void async(Task task) override {
        {
            const std::lock_guard guard(mutex_);
            tasks_.push_back(std::move(task));
        }
        wakeUp_.notify_one();
    }

private:
    void run() {
        while (const Task task = next()) {
            task();
        }
    }

    /// Waits for a task; empty when the queue ends.
    Task next() {
        std::unique_lock guard(mutex_);
        wakeUp_.wait(guard, [this] { return isEnding_ || !tasks_.empty(); });
        if (isEnding_) {
            return {};
        }
        Task task = std::move(tasks_.front());
        tasks_.pop_front();
        return task;
    }

    std::mutex mutex_;
    std::condition_variable wakeUp_;
    std::deque<Task> tasks_;
    bool isEnding_ = false;
    /// Last, for it uses the others from its first moment.
    std::thread thread_;
};

/// Tasks wait in a list of this queue's own and not in the events that announce them: the thread
/// sanitizer sees the list's lock, but not those of the event loop.
class MainQueue final : public QObject, public SerialQueue {
public:
    MainQueue() { moveToThread(QCoreApplication::instance()->thread()); }

    void async(Task task) override {
        {
            const std::lock_guard guard(mutex_);
            tasks_.push_back(std::move(task));
        }
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }

protected:
    void customEvent(QEvent* /*event*/) override {
        std::unique_lock guard(mutex_);
        const Task task = std::move(tasks_.front());
        tasks_.pop_front();
        guard.unlock();
        task();
    }

private:
    std::mutex mutex_;
    std::deque<Task> tasks_;
};

} // namespace

std::unique_ptr<SerialQueue> makeBackgroundQueue(const QString& label) {
    return std::make_unique<BackgroundQueue>(label);
}

std::unique_ptr<SerialQueue> makeMainQueue() {
    return std::make_unique<MainQueue>();
}

} // namespace quillet
