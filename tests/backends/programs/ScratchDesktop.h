#pragma once

#include "backends/programs/Applications.h"
#include "support/Fakes.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <functional>

namespace quillet::test {

/// A program that was started, and its arguments.
struct Started {
    QString program;
    QStringList arguments;

    friend bool operator==(const Started&, const Started&) = default;
};

/// The desktop of this process, which holds just the programs that the test installs. There is one
/// at a time.
class ScratchDesktop {
public:
    /// Has to come before anything asks for the desktop's folders: they are read once in a process.
    static void setEnvironment();

    ScratchDesktop();

    [[nodiscard]] QString path(const QString& name) const;
    /// Comes back when the desktop has noticed, where it has to.
    void write(const QString& name, const QString& text) const;
    /// A program that writes down how it was started.
    void addExecutable(const QString& name) const;
    /// An entry of the system, and the program that its command names first.
    void install(const QString& id, const QString& exec, const QString& mimeTypes,
                 const QString& more = {}) const;
    static QString entryText(const QString& exec, const QString& mimeTypes,
                             const QString& more = {});
    /// Waits until so many of the programs have been started: all since the test began, in order.
    [[nodiscard]] QList<Started> started(qsizetype count) const;
    /// Whether none has been started, nor is within a moment.
    [[nodiscard]] bool hasStartedNothing() const;
    [[nodiscard]] static Applications applications(TaskLauncher& launcher);

private:
    /// Does something to what the desktop watches, and waits until it has noticed.
    static void change(const std::function<void()>& what);
};

} // namespace quillet::test
