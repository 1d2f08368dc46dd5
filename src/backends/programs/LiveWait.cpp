#include "backends/programs/LiveWait.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>

namespace quillet {

LiveWait::LiveWait(std::chrono::milliseconds longest) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(longest);
    QObject::connect(&timer_, &QTimer::timeout, &loop_, &QEventLoop::quit);
}

void LiveWait::end() {
    hasEnded_ = true;
    loop_.quit();
}

bool LiveWait::run() {
    if (!hasEnded_) {
        timer_.start();
        loop_.exec();
    }
    return hasEnded_;
}

QDBusMessage liveAnswer(const QDBusConnection& bus, const QDBusMessage& call,
                        std::chrono::milliseconds longest) {
    QDBusPendingCallWatcher watcher(bus.asyncCall(call, static_cast<int>(longest.count())));
    // The bus keeps its own time; this one is for a bus that is itself silent.
    LiveWait wait(longest + std::chrono::seconds(1));
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, [&wait] { wait.end(); });
    if (watcher.isFinished() || wait.run()) {
        return watcher.reply();
    }
    return call.createErrorReply(QDBusError::NoReply, QStringLiteral("no answer"));
}

} // namespace quillet
