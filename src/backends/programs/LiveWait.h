#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace quillet {

/// Waiting for other programs while the windows of this one stay alive. Whatever happens on the
/// main thread can happen meanwhile, another wait included.
class LiveWait {
public:
    explicit LiveWait(std::chrono::milliseconds longest);
    LiveWait(const LiveWait&) = delete;
    LiveWait& operator=(const LiveWait&) = delete;
    ~LiveWait() = default;

    /// Ends the wait; also one that has not begun yet.
    void end();
    /// Until end() is called. False when the time ran out before, or this program is to end.
    [[nodiscard]] bool run();

private:
    QEventLoop loop_;
    QTimer timer_;
    bool hasEnded_ = false;
};

/// What a call over the bus is answered: a reply or an error.
[[nodiscard]] QDBusMessage liveAnswer(const QDBusConnection& bus, const QDBusMessage& call,
                                      std::chrono::milliseconds longest);

} // namespace quillet
