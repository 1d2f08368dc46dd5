#include "platform/SerialQueue.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace quillet {

namespace {

class BackgroundQueue final : public SerialQueue {
public:
    explicit BackgroundQueue(const QString& label) {
        // One thread that never retires makes a pool a serial queue.
        pool_.setObjectName(label);
        pool_.setMaxThreadCount(1);
        pool_.setExpiryTimeout(-1);
    }
    ~BackgroundQueue() override {
        pool_.clear();
        pool_.waitForDone();
    }
    BackgroundQueue(const BackgroundQueue&) = delete;
    BackgroundQueue& operator=(const BackgroundQueue&) = delete;

    void async(Task task) override { pool_.start(std::move(task)); }

private:
    QThreadPool pool_;
};

class MainQueue final : public SerialQueue {
public:
    void async(Task task) override {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(task),
                                  Qt::QueuedConnection);
    }
};

} // namespace

std::unique_ptr<SerialQueue> makeBackgroundQueue(const QString& label) {
    return std::make_unique<BackgroundQueue>(label);
}

std::unique_ptr<SerialQueue> makeMainQueue() {
    return std::make_unique<MainQueue>();
}

} // namespace quillet
