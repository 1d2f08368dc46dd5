#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <functional>

namespace quillet::test {

/// Lets the event loop run until the condition holds; false when it does not in time.
inline bool waitUntil(const std::function<bool()>& condition, int longestMilliseconds = 10000) {
    const QDeadlineTimer deadline(longestMilliseconds);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        QThread::msleep(1);
    }
    return true;
}

} // namespace quillet::test
