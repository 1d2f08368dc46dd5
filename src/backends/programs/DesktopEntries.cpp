#include "backends/programs/DesktopEntries.h"

#include "backends/programs/KeyFile.h"

#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>

#include <algorithm>

namespace quillet {

namespace {

const QString entryGroup = QStringLiteral("Desktop Entry");

/// The absolute folders of a list with colons; others mean nothing.
QStringList foldersIn(const QString& list) {
    QStringList folders;
    for (const QString& folder : list.split(u':')) {
        if (QDir::isAbsolutePath(folder)) {
            folders.append(QDir::cleanPath(folder));
        }
    }
    return folders;
}

QStringList firstOf(const QString& configured, const QString& fallback) {
    const QStringList folders = foldersIn(configured);
    return folders.isEmpty() ? foldersIn(fallback) : folders;
}

void appendOnce(QStringList& list, const QStringList& more) {
    for (const QString& text : more) {
        if (!list.contains(text)) {
            list.append(text);
        }
    }
}

} // namespace

DesktopFolders desktopFolders(const EnvironmentReader& environment) {
    const QString home = QDir::homePath();
    DesktopFolders folders;
    folders.configuration =
        firstOf(environment("XDG_CONFIG_HOME"), home + QStringLiteral("/.config")).mid(0, 1) +
        firstOf(environment("XDG_CONFIG_DIRS"), QStringLiteral("/etc/xdg"));
    folders.data =
        firstOf(environment("XDG_DATA_HOME"), home + QStringLiteral("/.local/share")).mid(0, 1) +
        firstOf(environment("XDG_DATA_DIRS"), QStringLiteral("/usr/local/share:/usr/share"));
    folders.desktopNames =
        environment("XDG_CURRENT_DESKTOP").toLower().split(u':', Qt::SkipEmptyParts);
    folders.executables =
        firstOf(environment("PATH"), QStringLiteral("/usr/local/bin:/usr/bin:/bin"));
    return folders;
}

QStringList DesktopEntries::associationFiles() const {
    QStringList files;
    const auto addFilesIn = [&](const QString& folder) {
        for (const QString& desktop : folders_.desktopNames) {
            files.append(QStringLiteral("%1/%2-mimeapps.list").arg(folder, desktop));
        }
        files.append(folder + QStringLiteral("/mimeapps.list"));
    };
    for (const QString& folder : folders_.configuration) {
        addFilesIn(folder);
    }
    for (const QString& folder : folders_.data) {
        addFilesIn(folder + QStringLiteral("/applications"));
    }
    return files;
}

QHash<QString, QString> DesktopEntries::entryPaths() const {
    QHash<QString, QString> paths;
    for (const QString& folder : folders_.data) {
        const QDir applications(folder + QStringLiteral("/applications"));
        QDirIterator files(applications.path(), {QStringLiteral("*.desktop")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QString id = applications.relativeFilePath(path).replace(u'/', u'-');
            if (!paths.contains(id)) {
                paths.insert(id, path);
            }
        }
    }
    return paths;
}

std::optional<DesktopEntry> DesktopEntries::startableEntry(const QString& id,
                                                           const QString& path) const {
    const KeyFile file = KeyFile::read(path);
    const auto text = [&](const char* key) {
        return file.text(entryGroup, QString::fromLatin1(key));
    };
    if (text("Type") != u"Application" || file.isTrue(entryGroup, QStringLiteral("Hidden"))) {
        return std::nullopt;
    }
    DesktopEntry entry{.id = id,
                       .path = path,
                       .name = text("Name"),
                       .icon = text("Icon"),
                       .exec = text("Exec"),
                       .mimeTypes = file.list(entryGroup, QStringLiteral("MimeType")),
                       .needsTerminal = file.isTrue(entryGroup, QStringLiteral("Terminal")),
                       .isHidden = file.isTrue(entryGroup, QStringLiteral("NoDisplay"))};
    const QString tried = text("TryExec");
    const auto command = commandLine(entry, {});
    if (!command || executable(command->front()).isNull() ||
        (!tried.isEmpty() && executable(tried).isNull())) {
        return std::nullopt;
    }
    return entry;
}

QString DesktopEntries::executable(const QString& name) const {
    const QString found = QStandardPaths::findExecutable(name, folders_.executables);
    return found.isEmpty() ? QString() : found;
}

std::vector<DesktopEntry> DesktopEntries::handlers(const QString& mimeType) const {
    QStringList chosen;
    QStringList added;
    QStringList removed;
    for (const QString& path : associationFiles()) {
        const KeyFile file = KeyFile::read(path);
        appendOnce(chosen, file.list(QStringLiteral("Default Applications"), mimeType));
        QStringList more = file.list(QStringLiteral("Added Associations"), mimeType);
        // What a file takes away it takes from the files behind it.
        erase_if(more, [&](const QString& id) { return removed.contains(id); });
        appendOnce(added, more);
        appendOnce(removed, file.list(QStringLiteral("Removed Associations"), mimeType));
    }
    const QHash<QString, QString> paths = entryPaths();
    std::vector<DesktopEntry> entries;
    QStringList ids = chosen;
    appendOnce(ids, added);
    for (const QString& id : ids) {
        if (auto entry = startableEntry(id, paths.value(id))) {
            entries.push_back(*std::move(entry));
        }
    }
    const auto chosenCount = std::ssize(entries);
    QStringList others = paths.keys();
    others.sort();
    for (const QString& id : others) {
        if (ids.contains(id) || removed.contains(id)) {
            continue;
        }
        auto entry = startableEntry(id, paths.value(id));
        if (entry && entry->mimeTypes.contains(mimeType)) {
            entries.push_back(*std::move(entry));
        }
    }
    // These name the types of files, but may take other addresses only.
    std::stable_partition(entries.begin() + chosenCount, entries.end(),
                          [](const DesktopEntry& entry) { return !entry.isHidden; });
    return entries;
}

} // namespace quillet
