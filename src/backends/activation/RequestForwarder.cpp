#include "backends/activation/RequestForwarder.h"

#include "backends/activation/ApplicationNames.h"

#include <QDBusConnectionInterface>
#include <QDeadlineTimer>

#include <algorithm>
#include <thread>

namespace quillet {

namespace {

constexpr std::chrono::milliseconds pause{20};

} // namespace

RequestForwarder::RequestForwarder(QDBusConnection bus, std::function<bool()> startProgram)
    : bus_(std::move(bus))
    , startProgram_(std::move(startProgram)) {}

RequestForwarder::Outcome RequestForwarder::forward(const DesktopRequest& request,
                                                    const QString& token,
                                                    std::chrono::milliseconds patience) {
    if (!bus_.isConnected()) {
        return Outcome::NoBus;
    }
    const QDBusMessage call = callFor(request, token);
    const QDeadlineTimer deadline(patience);
    bool isStarted = false;
    while (!deadline.hasExpired()) {
        // One that is ending refuses; its successor is started once its name is free.
        if (!isStarted && !bus_.interface()->isServiceRegistered(applicationIdentifier())) {
            if (!startProgram_()) {
                return Outcome::NoProgram;
            }
            isStarted = true;
        }
        const auto remaining = std::max(std::chrono::milliseconds(deadline.remainingTime()), pause);
        if (bus_.call(call, QDBus::Block, static_cast<int>(remaining.count())).type() ==
            QDBusMessage::ReplyMessage) {
            return Outcome::Delivered;
        }
        std::this_thread::sleep_for(pause);
    }
    return Outcome::NoProgram;
}

} // namespace quillet
