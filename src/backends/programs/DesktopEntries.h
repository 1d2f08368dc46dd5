#pragma once

#include "platform/Environment.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillet {

/// Where a desktop looks for programs and the user's choice among them.
struct DesktopFolders {
    /// The user's own first.
    QStringList configuration;
    QStringList data;
    /// Names of the desktop, lower case, the most specific first.
    QStringList desktopNames;
    /// Where programs are found by their name.
    QStringList executables;
};

/// The folders that the environment names, or their defaults.
[[nodiscard]] DesktopFolders desktopFolders(const EnvironmentReader& environment);

/// An installed program, as its desktop entry describes it.
struct DesktopEntry {
    /// "org.example.Program.desktop"
    QString id;
    QString path;
    QString name;
    QString icon;
    /// As it stands in the entry; see commandLine().
    QString exec;
    QStringList mimeTypes;
    bool needsTerminal = false;
    /// Not one that the desktop lists in its menus.
    bool isHidden = false;
};

/// The command of an entry for some addresses or files, program first. An entry that takes only one
/// gets the last. The addresses are data: each takes the place of one argument or part of it.
/// Nothing when the entry is malformed.
[[nodiscard]] std::optional<QStringList> commandLine(const DesktopEntry& entry,
                                                     const QStringList& addresses);

/// The installed programs. Everything is read from disk at every call, since users install programs
/// and choose others while this one runs.
class DesktopEntries {
public:
    explicit DesktopEntries(DesktopFolders folders)
        : folders_(std::move(folders)) {}

    /// The programs that open a type ("text/calendar", "x-scheme-handler/mailto"): what the user
    /// chose first, then what the desktop prefers, then any other, hidden ones last. Only those
    /// that can be started.
    [[nodiscard]] std::vector<DesktopEntry> handlers(const QString& mimeType) const;
    /// The file of a program; a null QString when there is none of that name.
    [[nodiscard]] QString executable(const QString& name) const;

private:
    [[nodiscard]] QStringList associationFiles() const;
    /// The paths of all entries by id.
    [[nodiscard]] QHash<QString, QString> entryPaths() const;
    [[nodiscard]] std::optional<DesktopEntry> startableEntry(const QString& id,
                                                             const QString& path) const;

    DesktopFolders folders_;
};

} // namespace quillet
