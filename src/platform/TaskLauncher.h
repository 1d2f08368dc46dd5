#pragma once

#include <QString>
#include <QStringList>

#include <expected>

namespace quillet {

/// The process of the running program.
class TaskLauncher {
public:
    virtual ~TaskLauncher() = default;
    [[nodiscard]] virtual qint64 processIdentifier() const = 0;
    [[nodiscard]] virtual QString executablePath() const = 0;
    /// Starts a program that outlives this one; the error is a text for the log.
    virtual std::expected<void, QString> launch(const QString& path,
                                                const QStringList& arguments) = 0;
    /// Ends the program when control returns to the main loop.
    virtual void terminate() = 0;
};

} // namespace quillet
