#pragma once

#include "backends/activation/ApplicationService.h"

#include <QProcess>
#include <QSemaphore>
#include <QThread>

#include <gtest/gtest.h>

#include <mutex>

namespace quillet {

/// A session bus that nobody else is on.
class PrivateBus {
public:
    PrivateBus() {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        if (daemon_.waitForReadyRead()) {
            address_ = QString::fromLatin1(daemon_.readLine().trimmed());
        }
    }
    ~PrivateBus() {
        daemon_.terminate();
        daemon_.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    [[nodiscard]] QDBusConnection connection() const {
        static int number = 0;
        return QDBusConnection::connectToBus(address_, QStringLiteral("test-%1").arg(++number));
    }

private:
    QProcess daemon_;
    QString address_;
};

/// A started program with a main loop of its own, which writes down what it is asked.
class RunningProgram {
public:
    enum class Serving { AtOnce, Later };

    explicit RunningProgram(const PrivateBus& bus, Serving serving = Serving::AtOnce)
        : bus_(bus.connection()) {
        thread_.start();
        runner_.moveToThread(&thread_);
        inside([&] {
            service_ = std::make_unique<ApplicationService>(bus_);
            standing_ = service_->claim({}, std::chrono::seconds(5));
            if (serving == Serving::AtOnce) {
                serve();
            }
        });
    }
    ~RunningProgram() { end(); }
    Q_DISABLE_COPY_MOVE(RunningProgram)

    void inside(const std::function<void()>& task) {
        QMetaObject::invokeMethod(&runner_, task, Qt::BlockingQueuedConnection);
    }
    void serve() {
        service_->serve({.activate = [this](const QString& token) { note("activate " + token); },
                         .open =
                             [this](const QStringList& addresses, const QString& token) {
                                 note("open " + addresses.join(u',') + " " + token);
                             },
                         .activateAction =
                             [this](const QString& action, const QString& token) {
                                 note("action " + action + " " + token);
                             }});
    }
    void endSoon() {
        inside([this] { service_->endSoon(); });
    }
    /// As the end of a process does it: the connection goes.
    void end() {
        if (!thread_.isRunning()) {
            return;
        }
        inside([this] { service_.reset(); });
        QDBusConnection::disconnectFromBus(bus_.name());
        bus_ = QDBusConnection("none");
        thread_.quit();
        thread_.wait();
    }
    [[nodiscard]] ApplicationService::Standing standing() const { return standing_; }
    /// Once that many requests have come.
    [[nodiscard]] QStringList requests(int count) {
        EXPECT_TRUE(noted_.tryAcquire(count, 10'000));
        const std::scoped_lock lock(mutex_);
        return requests_;
    }

    /// What a handler does before it has done with a request.
    std::function<void()> duringRequest;

private:
    void note(const QString& request) {
        if (duringRequest) {
            duringRequest();
        }
        const std::scoped_lock lock(mutex_);
        requests_ << request;
        noted_.release();
    }

    QDBusConnection bus_;
    QThread thread_;
    QObject runner_;
    std::unique_ptr<ApplicationService> service_;
    ApplicationService::Standing standing_ = ApplicationService::Standing::HandedOver;
    std::mutex mutex_;
    QStringList requests_;
    QSemaphore noted_;
};

} // namespace quillet
