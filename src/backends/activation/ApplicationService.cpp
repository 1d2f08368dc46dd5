#include "backends/activation/ApplicationService.h"

#include "backends/activation/DesktopRequest.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>

#include <algorithm>
#include <thread>

namespace quillet {

namespace {

const QString endingError = QStringLiteral("org.quillet.Quillet.Error.Ending");

constexpr std::chrono::milliseconds pause{20};

QString tokenIn(const QVariantMap& platformData) {
    const QString token = platformData.value(activationTokenKey()).toString();
    return token.isEmpty() ? platformData.value(startupIdentifierKey()).toString() : token;
}

} // namespace

ApplicationService::ApplicationService(QDBusConnection bus, QObject* parent)
    : QObject(parent)
    , bus_(std::move(bus)) {}

ApplicationService::~ApplicationService() {
    if (bus_.isConnected()) {
        // Before the object, which nobody shall look for in vain.
        bus_.unregisterService(applicationIdentifier());
    }
}

ApplicationService::Standing ApplicationService::claim(const Token& token,
                                                       std::chrono::milliseconds patience) {
    if (!bus_.isConnected()) {
        return Standing::First;
    }
    for (const QDeadlineTimer deadline(patience); !takeName(); std::this_thread::sleep_for(pause)) {
        if (comesToFront(token, std::chrono::milliseconds(deadline.remainingTime()))) {
            return Standing::HandedOver;
        }
        // A window more is better than none: of a program that hangs nobody can see what it does.
        if (deadline.hasExpired()) {
            break;
        }
    }
    return Standing::First;
}

bool ApplicationService::takeName() {
    // Before the name, for with it the requests may come.
    bus_.registerObject(applicationObjectPath(), this, QDBusConnection::ExportScriptableSlots);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus_.interface()->registerService(applicationIdentifier());
    // A bus that allows no names knows no other program of this name either.
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool ApplicationService::comesToFront(const Token& token,
                                      std::chrono::milliseconds patience) const {
    const auto timeout = std::max(patience, pause);
    // Errors come from programs that are ending, at any stage of it.
    return bus_.call(callFor({}, token), QDBus::Block, static_cast<int>(timeout.count())).type() ==
           QDBusMessage::ReplyMessage;
}

void ApplicationService::serve(Handlers handlers) {
    handlers_ = std::move(handlers);
    isServing_ = true;
    for (const auto& request : std::exchange(waiting_, {})) {
        request();
    }
}

void ApplicationService::endSoon() {
    isEnding_ = true;
}

void ApplicationService::handle(std::function<void()> request) {
    if (isEnding_) {
        if (calledFromDBus()) {
            sendErrorReply(endingError, QStringLiteral("the program is ending"));
        }
    } else if (isServing_) {
        // The caller gets its answer first: a dialog may keep the request busy for long.
        QMetaObject::invokeMethod(this, std::move(request), Qt::QueuedConnection);
    } else {
        waiting_.push_back(std::move(request));
    }
}

void ApplicationService::Activate(const QVariantMap& platformData) {
    handle([this, token = tokenIn(platformData)] { handlers_.activate(token); });
}

void ApplicationService::Open(const QStringList& addresses, const QVariantMap& platformData) {
    handle([this, addresses, token = tokenIn(platformData)] { handlers_.open(addresses, token); });
}

void ApplicationService::ActivateAction(const QString& action, const QVariantList& /*parameters*/,
                                        const QVariantMap& platformData) {
    handle(
        [this, action, token = tokenIn(platformData)] { handlers_.activateAction(action, token); });
}

} // namespace quillet
