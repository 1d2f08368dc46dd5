#pragma once

#include "platform/TaskLauncher.h"

#include <QString>
#include <QStringList>

#include <expected>
#include <vector>

namespace quillet {

/// An installed program, as its desktop entry describes it.
struct DesktopEntry {
    /// "org.example.Program.desktop"
    QString id;
    QString name;
    /// As it stands in the entry, field codes included.
    QString command;
    /// The file that the command starts: a path, or a name among the program folders.
    QString executable;
    /// Not one that the desktop lists in its menus.
    bool isHidden = false;
};

/// Finds installed programs as the desktop does, and starts them, each argument as it is: no shell
/// ever reads one. What was installed and chosen since the last request is seen by the next.
class Applications {
public:
    /// No argument of a program can be longer, in bytes.
    static constexpr qsizetype longestArgumentBytes = 120'000;

    /// Programs with an entry of that id are left out: this one must not be asked to do what it
    /// asks others.
    Applications(TaskLauncher& launcher, QString ownId)
        : launcher_(launcher)
        , ownId_(std::move(ownId)) {}

    /// The programs that open a type ("text/calendar", "x-scheme-handler/mailto"): what was chosen
    /// first, then what the desktop prefers, hidden ones last. Only those that can be started.
    [[nodiscard]] std::vector<DesktopEntry> handlers(const QString& mimeType) const;
    /// Has the program open addresses, "file:///…" for a file. One that takes only one gets the
    /// last. The error is a text for the user.
    [[nodiscard]] static std::expected<void, QString> open(const DesktopEntry& entry,
                                                           const QStringList& addresses);
    /// Starts the entry's program with these arguments instead of those of its command.
    [[nodiscard]] std::expected<void, QString> start(const DesktopEntry& entry,
                                                     const QStringList& arguments) const;

private:
    TaskLauncher& launcher_;
    QString ownId_;
};

} // namespace quillet
