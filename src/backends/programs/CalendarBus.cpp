#include "backends/programs/CalendarBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include <array>
#include <ctime>
#include <libintl.h>

namespace quillet {

namespace {

constexpr int deadlineMilliseconds = 10'000;

/// Has the bus start a program, unless it runs, and waits until it answers to its name.
std::expected<void, QString> startedService(const QString& service) {
    QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    if (bus == nullptr) {
        return std::unexpected(QStringLiteral("there is no session bus"));
    }
    const QDBusReply<void> reply = bus->startService(service);
    if (!reply.isValid()) {
        return std::unexpected(reply.error().message());
    }
    return {};
}

/// Runs a command that hands its arguments to the program that is running already, and ends.
std::expected<void, QString> ran(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::NotOpen);
    if (!process.waitForFinished(deadlineMilliseconds)) {
        return std::unexpected(process.errorString());
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return std::unexpected(
            QStringLiteral("%1 ended with %2").arg(program).arg(process.exitCode()));
    }
    return {};
}

} // namespace

QString gnomeCalendarDate(const QDateTime& start) {
    // The program reads dates in the form that the calendar service's own table of texts has.
    const char* format = ::dgettext("evolution-data-server", "%m/%d/%Y %H:%M");
    const std::time_t seconds = start.toSecsSinceEpoch();
    std::tm fields{};
    ::localtime_r(&seconds, &fields);
    constexpr std::size_t longestDate = 200;
    std::array<char, longestDate> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), format, &fields);
    return QString::fromLocal8Bit(text.data(), static_cast<qsizetype>(length));
}

bool SessionCalendarBus::isRunning(const QString& service) const {
    QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    return bus != nullptr && bus->isServiceRegistered(service).value();
}

bool SessionCalendarBus::waitUntilRunning(const QString& service) const {
    constexpr unsigned long pauseMilliseconds = 50;
    const QDeadlineTimer deadline(deadlineMilliseconds);
    while (!isRunning(service)) {
        if (deadline.hasExpired() || !QDBusConnection::sessionBus().isConnected()) {
            return false;
        }
        QThread::msleep(pauseMilliseconds);
    }
    return true;
}

std::expected<void, QString>
SessionCalendarBus::showInGnomeCalendar(const QString& serviceCalendar, const QString& uid,
                                        const std::optional<QDateTime>& start) {
    const QString program = QStringLiteral("gnome-calendar");
    if (auto started = startedService(QStringLiteral("org.gnome.Calendar")); !started) {
        return started;
    }
    if (start) {
        if (auto shown = ran(program, {QStringLiteral("--date"), gnomeCalendarDate(*start)});
            !shown) {
            return shown;
        }
    }
    return ran(program, {QStringLiteral("--uuid"), serviceCalendar + u':' + uid});
}

std::expected<void, QString>
SessionCalendarBus::showInKdeCalendar(const QString& service, const QString& uid,
                                      const std::optional<QDateTime>& start) {
    if (auto started = startedService(service); !started) {
        return started;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, QStringLiteral("/Calendar"), QStringLiteral("org.kde.calendar.Calendar"),
        QStringLiteral("showIncidenceByUid"));
    message.setArguments({uid, start.value_or(QDateTime::currentDateTime()), QString()});
    const QDBusMessage reply =
        QDBusConnection::sessionBus().call(message, QDBus::Block, deadlineMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        return std::unexpected(reply.errorMessage());
    }
    return {};
}

} // namespace quillet
