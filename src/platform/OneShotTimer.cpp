#include "platform/OneShotTimer.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace quillet {

namespace {

class EventLoopTimer final : public OneShotTimer {
public:
    void start(double seconds, std::function<void()> callback) override {
        const std::chrono::milliseconds delay(static_cast<std::int64_t>(seconds * 1000.0));
        QTimer::singleShot(delay, &context_, std::move(callback));
    }

private:
    QObject context_;
};

} // namespace

std::unique_ptr<OneShotTimer> makeOneShotTimer() {
    return std::make_unique<EventLoopTimer>();
}

} // namespace quillet
