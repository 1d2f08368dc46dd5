#include "backends/programs/CalendarBus.h"

#include "backends/programs/LiveWait.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QProcess>

#include <array>
#include <ctime>
#include <libintl.h>

namespace quillet {

namespace {

std::expected<void, QString> resultOf(const QDBusMessage& answer) {
    if (answer.type() == QDBusMessage::ReplyMessage) {
        return {};
    }
    return std::unexpected(answer.errorMessage());
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

SessionCalendarBus::SessionCalendarBus(QDBusConnection bus, std::chrono::milliseconds patience)
    : bus_(std::move(bus))
    , patience_(patience) {}

bool SessionCalendarBus::isRunning(const QString& service) const {
    QDBusConnectionInterface* bus = bus_.interface();
    return bus != nullptr && bus->isServiceRegistered(service).value();
}

bool SessionCalendarBus::waitUntilRunning(const QString& service) const {
    if (!bus_.isConnected()) {
        return false;
    }
    LiveWait wait(patience_);
    const QDBusServiceWatcher watcher(service, bus_, QDBusServiceWatcher::WatchForRegistration);
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, [&wait] { wait.end(); });
    return isRunning(service) || wait.run();
}

std::expected<void, QString> SessionCalendarBus::showInGnomeCalendar(const EventPlace& place,
                                                                     const QString& uid) {
    const QString program = QStringLiteral("gnome-calendar");
    if (auto started = startService(QStringLiteral("org.gnome.Calendar")); !started) {
        return started;
    }
    if (place.start) {
        if (auto shown = run(program, {QStringLiteral("--date"), gnomeCalendarDate(*place.start)});
            !shown) {
            return shown;
        }
    }
    const QString event = place.serviceCalendar + u':' + uid;
    return run(program, {QStringLiteral("--uuid"),
                         place.occurrence.isEmpty() ? event : event + u':' + place.occurrence});
}

std::expected<void, QString>
SessionCalendarBus::showInKdeCalendar(const QString& service, const QString& uid,
                                      const std::optional<QDateTime>& start) {
    if (auto started = startService(service); !started) {
        return started;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, QStringLiteral("/Calendar"), QStringLiteral("org.kde.calendar.Calendar"),
        QStringLiteral("showIncidenceByUid"));
    message.setArguments({uid, start.value_or(QDateTime::currentDateTime()), QString()});
    return resultOf(liveAnswer(bus_, message, patience_));
}

std::expected<void, QString> SessionCalendarBus::startService(const QString& service) const {
    if (!bus_.isConnected()) {
        return std::unexpected(QStringLiteral("there is no session bus"));
    }
    // The bus refuses to start what it has no file for, also when it runs.
    if (isRunning(service)) {
        return {};
    }
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("StartServiceByName"));
    message.setArguments({service, 0U});
    return resultOf(liveAnswer(bus_, message, patience_));
}

std::expected<void, QString> SessionCalendarBus::run(const QString& program,
                                                     const QStringList& arguments) const {
    QProcess process;
    LiveWait wait(patience_);
    const auto end = [&wait] { wait.end(); };
    QObject::connect(&process, &QProcess::finished, end);
    QObject::connect(&process, &QProcess::errorOccurred, end);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments, QIODevice::NotOpen);
    if (!wait.run()) {
        process.kill();
        process.waitForFinished();
        return std::unexpected(QStringLiteral("%1 does not answer").arg(program));
    }
    if (process.error() == QProcess::FailedToStart) {
        return std::unexpected(process.errorString());
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return std::unexpected(
            QStringLiteral("%1 ended with %2").arg(program).arg(process.exitCode()));
    }
    return {};
}

} // namespace quillet
