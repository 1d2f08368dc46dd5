#pragma once

#include "backends/programs/DesktopEntries.h"
#include "platform/TaskLauncher.h"

#include <expected>

namespace quillet {

/// Finds installed programs and starts them, each argument as it is: no shell ever reads one.
class Applications {
public:
    /// No argument of a program can be longer, in bytes.
    static constexpr qsizetype longestArgumentBytes = 120'000;

    /// Programs with an entry of that id are left out: this one must not be asked to do what it
    /// asks others.
    Applications(DesktopEntries entries, TaskLauncher& launcher, QString ownId)
        : entries_(std::move(entries))
        , launcher_(launcher)
        , ownId_(std::move(ownId)) {}

    /// See DesktopEntries::handlers().
    [[nodiscard]] std::vector<DesktopEntry> handlers(const QString& mimeType) const;
    /// See commandLine(). The error is a text for the user.
    [[nodiscard]] std::expected<void, QString> open(const DesktopEntry& entry,
                                                    const QStringList& addresses) const;
    /// Starts the entry's program with these arguments instead of those of its command.
    [[nodiscard]] std::expected<void, QString> start(const DesktopEntry& entry,
                                                     const QStringList& arguments) const;
    /// The name of the file that the entry's command starts; empty when it starts it through
    /// another program.
    [[nodiscard]] static QString programName(const DesktopEntry& entry);

private:
    [[nodiscard]] std::expected<void, QString> run(const DesktopEntry& entry,
                                                   QStringList command) const;

    DesktopEntries entries_;
    TaskLauncher& launcher_;
    QString ownId_;
};

} // namespace quillet
