#pragma once

#include "backends/programs/EventPlace.h"

#include <QDBusConnection>

#include <chrono>
#include <expected>

namespace quillet {

/// Calendar programs that are asked over the session bus. Errors are texts for the log. While one
/// is waited for, the windows of this program stay alive.
class CalendarBus {
public:
    virtual ~CalendarBus() = default;
    /// Whether a program has that name on the bus.
    [[nodiscard]] virtual bool isRunning(const QString& service) const = 0;
    /// Waits until a program has that name; false when none takes it in time.
    [[nodiscard]] virtual bool waitUntilRunning(const QString& service) const = 0;
    /// The program looks only among the days that it shows: the place's start takes it there.
    virtual std::expected<void, QString> showInGnomeCalendar(const EventPlace& place,
                                                             const QString& uid) = 0;
    /// `service` is the program's name on the bus.
    virtual std::expected<void, QString>
    showInKdeCalendar(const QString& service, const QString& uid,
                      const std::optional<QDateTime>& start) = 0;
};

/// A moment, local time, as GNOME Calendar takes it from its command line in the user's language.
[[nodiscard]] QString gnomeCalendarDate(const QDateTime& start);

class SessionCalendarBus final : public CalendarBus {
public:
    /// `patience` is how long each step of a program may take.
    explicit SessionCalendarBus(QDBusConnection bus = QDBusConnection::sessionBus(),
                                std::chrono::milliseconds patience = std::chrono::seconds(10));

    [[nodiscard]] bool isRunning(const QString& service) const override;
    [[nodiscard]] bool waitUntilRunning(const QString& service) const override;
    std::expected<void, QString> showInGnomeCalendar(const EventPlace& place,
                                                     const QString& uid) override;
    std::expected<void, QString> showInKdeCalendar(const QString& service, const QString& uid,
                                                   const std::optional<QDateTime>& start) override;

private:
    /// Has the bus start a program, unless it runs, and waits until it answers to its name.
    [[nodiscard]] std::expected<void, QString> startService(const QString& service) const;
    /// Runs a command that hands its arguments to the program that is running already, and ends.
    [[nodiscard]] std::expected<void, QString> run(const QString& program,
                                                   const QStringList& arguments) const;

    QDBusConnection bus_;
    std::chrono::milliseconds patience_;
};

} // namespace quillet
