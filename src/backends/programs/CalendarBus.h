#pragma once

#include <QDateTime>
#include <QString>

#include <expected>
#include <optional>

namespace quillet {

/// Calendar programs that are asked over the session bus. Errors are texts for the log.
class CalendarBus {
public:
    virtual ~CalendarBus() = default;
    /// Whether a program has that name on the bus.
    [[nodiscard]] virtual bool isRunning(const QString& service) const = 0;
    /// Waits until a program has that name; false when none takes it within ten seconds.
    [[nodiscard]] virtual bool waitUntilRunning(const QString& service) const = 0;
    /// The program looks only among the days that it shows: `start`, local time, takes it there.
    virtual std::expected<void, QString>
    showInGnomeCalendar(const QString& serviceCalendar, const QString& uid,
                        const std::optional<QDateTime>& start) = 0;
    /// `service` is the program's name on the bus.
    virtual std::expected<void, QString>
    showInKdeCalendar(const QString& service, const QString& uid,
                      const std::optional<QDateTime>& start) = 0;
};

/// A moment, local time, as GNOME Calendar takes it from its command line in the user's language.
[[nodiscard]] QString gnomeCalendarDate(const QDateTime& start);

class SessionCalendarBus final : public CalendarBus {
public:
    [[nodiscard]] bool isRunning(const QString& service) const override;
    [[nodiscard]] bool waitUntilRunning(const QString& service) const override;
    std::expected<void, QString>
    showInGnomeCalendar(const QString& serviceCalendar, const QString& uid,
                        const std::optional<QDateTime>& start) override;
    std::expected<void, QString> showInKdeCalendar(const QString& service, const QString& uid,
                                                   const std::optional<QDateTime>& start) override;
};

} // namespace quillet
